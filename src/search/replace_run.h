// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "search/whole_words.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <optional>

QT_BEGIN_NAMESPACE
class QProgressDialog;
QT_END_NAMESPACE

namespace my_classes {

class SearchDialog;

/// What makes a Replace All one change of the document, one undo step, and something one can stop.
///
/// From the first replacement on, the dialog's operations go to a cursor of the run instead of the text area's, inside
/// one edit block. Whenever somebody may look or interfere (a message box, the progress dialog) the run is paused: the
/// block is closed and the text area has the cursor. Lives on the stack of replace_all(); survives the dialog.
class ReplaceRun
{
public:
    explicit ReplaceRun(SearchDialog *dialog);
    ~ReplaceRun();
    Q_DISABLE_COPY_MOVE(ReplaceRun)

    /// False once the person, or the end of the application, has stopped the run. Shows the progress dialog, and lets
    /// it work, after a second of work and from time to time then.
    bool goes_on(int count);
    void stop() { m_stopped = true; }
    void pause();
    void resume();

    QTextCursor cursor() const;
    void set_cursor(const QTextCursor &cursor);

    /// The first `wanted` that starts at or behind `from`, or -1. `from` never decreases.
    qsizetype find(const QStringMatcher &wanted, qsizetype from);
    /// The start of the first whole-word match of `pattern`, -1 if there is none; nothing if it takes the regular
    /// expression to tell.
    std::optional<qsizetype> first_whole_word(const QString &pattern);
    void replaced(int position, int removed, int added, const QString &text);
    /// Keeps a diagnostic line until the next pause: writing each would take longer than the replacing.
    void keep_line(const QString &line);

private:
    void show_progress(int count);

    QPointer<SearchDialog> m_dialog;
    QPointer<QProgressDialog> m_progress;
    bool m_stopped = false;
    bool m_is_paused = false;
    QString m_lines;
    qint64 m_next_look;
    qint64 m_worked = 0; // milliseconds, before m_clock started
    QElapsedTimer m_clock;

    QTextCursor m_block; // has the edit block open unless null
    QTextCursor m_cursor;
    QPointer<QTextDocument> m_edited;
    int m_revision = -1; // of m_edited when the block was closed

    qsizetype m_searched_until = 0; // what find() looks for does not start before, from its last position on
    std::optional<FirstWholeWord> m_first_word;
    QString m_selected_word; // what m_first_word has selected last
};

} // namespace my_classes
