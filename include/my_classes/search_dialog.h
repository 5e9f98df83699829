// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpressionMatchIterator>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QDialog>
#include <QtWidgets/QTextEdit>

#include <optional>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QPushButton;
class QTextCursor;
QT_END_NAMESPACE

namespace my_classes {

class DocumentText;
class ReplaceRun;

/// Find and replace in one text area, modeless and without a parent.
///
/// Two searches live side by side with their own state: Find Next steps through whole-word, case-sensitive matches of a
/// regular expression; find_all_matches() marks every literal, case-insensitive occurrence. The dialog stays on top of
/// the text area's window, goes out of the way of what it finds, is hidden while the text area is, and does not keep
/// the application running.
///
/// It never deletes itself: whoever created it does, at any moment, and CustomTextEditor the one that it opened. When
/// the text area dies it is closed, and every operation does nothing from then on. Positions are UTF-16 code units from
/// the start of the document's plain text. GUI thread only.
class MY_CLASSES_EXPORT SearchDialog : public QDialog
{
    Q_OBJECT

public:
    /// For `editor`, which it does not own.
    explicit SearchDialog(QTextEdit *editor);
    ~SearchDialog() override;

    /// Builds the widgets; called once, by the constructor.
    void init_ui();

    // Whole words. The search text is a regular expression between two word boundaries.

    /// Selects the next match, starting at the top of the document if no search is under way or the person has edited
    /// the search text since (a text set by a program leaves the search alone), and enables the replace buttons. Says
    /// so in a message box if there is none, or none left; then the next call starts at the top again. An invalid
    /// expression, or one that runs away, has no matches; an empty one does nothing. Matches are those of the text as
    /// it was when the search started.
    void find_next();
    /// Forgets the search under way and searches from the top.
    void restart_search();

    // Every occurrence. These are not wired to any button.

    /// Marks every occurrence yellow (the letters on it are shown dark, which is no part of the document), fills
    /// search_results, and moves the cursor one position before the first; an occurrence at the very start moves
    /// nothing. Says so in a message box if there is none. An empty search text does nothing. A read-only text is not
    /// marked.
    void find_all_matches();
    /// Takes the background colour off the whole document, unless that is read-only, and forgets the results.
    void clear_highlight();
    /// Does nothing: `matches` is no list of cursors. Kept for hosts that call it.
    void highlight_match();
    /// A yellow background.
    QTextCharFormat highlight_format() const;
    /// Puts the cursor at `position` and the focus into the text area; a negative position does neither. A position
    /// behind the end means the end.
    void navigate_to_match(int position);
    /// Navigates to current_search_index, without advancing it.
    void next_match();
    /// Steps current_search_index back, around the number of results, and navigates to that index as a position.
    void previous_match();

    // Replacing. A read-only text stays as it is.

    /// Replaces the text area's selection, whatever selected it, and searches from the top. Does nothing without one.
    void replace();
    /// Replaces literal, case-sensitive occurrences, as one undo step, and says how many. The search position grows by
    /// one search-text length per replacement: what is longer and contains the search text is found again until the
    /// person stops it, behind what is shorter some are passed over. An empty search text does nothing.
    void replace_all();
    /// Removes the selection; the caret stays.
    void clear_selection();

    /// As closing does.
    void reject() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The text area; null once that is gone.
    QPointer<QTextEdit> editor;
    /// What to find. A text set by a program goes on with the search under way, an edited one starts anew.
    QLineEdit *search_input = nullptr;
    /// What to put in its place.
    QLineEdit *replace_input = nullptr;
    QPushButton *next_button = nullptr;    ///< find_next()
    QPushButton *replace_button = nullptr; ///< replace(); disabled before the first match and in a read-only text
    QPushButton *replace_all_button =
        nullptr; ///< replace_all(); disabled before the first match and in a read-only text
    /// The search of find_next(); nothing means that the next one starts at the top.
    std::optional<QRegularExpressionMatchIterator> matches;
    /// Where find_next() goes on in a text that was replaced meanwhile.
    int search_index = 0;
    /// Start positions of the occurrences that find_all_matches() found.
    QList<int> search_results;
    /// What next_match() navigates to; -1 without results.
    int current_search_index = -1;

protected:
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    friend class ReplaceRun;

    void set_texts(QLabel *find_label, QLabel *replace_label);
    void on_return_pressed();
    void on_editor_destroyed();
    void stay_on_top_of_editor();
    void go_out_of_the_way();
    void inform(const QString &title, const QString &text);
    void select_match(qsizetype start, qsizetype length);
    void write_line(const QString &line);
    QTextCursor text_cursor() const;
    void set_text_cursor(const QTextCursor &cursor);

    DocumentText *m_text = nullptr;
    ReplaceRun *m_run = nullptr; // while Replace All is at work
    bool m_search_input_in_use = false;
    bool m_is_hidden_with_editor = false;
};

} // namespace my_classes
