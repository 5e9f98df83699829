// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "search/gap_text.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QTextDocument;
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

/// The plain text of a text area, kept and patched from the document's change reports.
///
/// Always equal to the text area's toPlainText(): whenever a report is missing or does not fit, the text is read anew.
/// A change costs nothing until the text is asked for, and then only what changed.
class DocumentText : public QObject
{
public:
    DocumentText(QTextEdit *text_area, QObject *parent);

    QString text();
    /// The text from `position` on, cheaply after an edit near `position`. Valid until the next call.
    QStringView tail(qsizetype position);
    qsizetype size();

    /// To be called after an edit inside an open edit block, which the document reports only at the block's end.
    void replaced_in_block(int position, int removed, int added);
    /// Gives the memory back; the next question reads the text anew.
    void forget();

private:
    void catch_up();
    void on_contents_change(int position, int removed, int added);

    QPointer<QTextEdit> m_text_area;
    QPointer<QTextDocument> m_document;
    GapText m_kept;
    bool m_is_kept = false;
    bool m_patched_in_block = false;
    bool m_changed = false;
    int m_revision = 0;          // of the document, at its last report
    int m_undone = 0;            // steps of the document that can be redone, at its last report
    qsizetype m_length = 0;      // of the document, at its last report
    qsizetype m_same_before = 0; // characters at the start that no report has touched since the last patch
    qsizetype m_same_behind = 0; // the same at the end
};

} // namespace my_classes
