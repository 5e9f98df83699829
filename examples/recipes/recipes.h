// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/my_classes.h>

QT_BEGIN_NAMESPACE
class QDialog;
class QLineEdit;
class QMainWindow;
class QMenu;
class QTimer;
QT_END_NAMESPACE

/// What hosts ask for, each in a few public calls to copy from.
namespace recipes {

/// The menu of the text area at `point` of its viewport: suggestions on top for a misspelled word, and what to do with
/// it. The caller owns it.
QMenu *context_menu(my_classes::CustomTextEditor *editor, const QPoint &point);
/// Shows that menu at a right click.
void use_context_menu(my_classes::CustomTextEditor *editor);

/// Lets the person choose family and size in the tool bar.
void enable_font_boxes(my_classes::CustomTextEditor *editor);

/// Writes the document as PDF; false, and an earlier file as it was, if it cannot be written.
bool save_pdf(const my_classes::CustomTextEditor *editor, const QString &path, const QString &title);
/// Shows the pages before they are printed.
void show_print_preview(my_classes::CustomTextEditor *editor);

/// Ctrl+F finds, in whichever tab is in front.
void find_by_ctrl_f(QMainWindow *window, my_classes::EditableTabWidget *tabs);

/// Keeps the tab that was closed last; Ctrl+Shift+T brings it back.
void reopen_closed_tab(QMainWindow *window, my_classes::EditableTabWidget *tabs);

/// Closes an empty tab without a question, and asks about others in the host's words.
void ask_in_own_words(my_classes::EditableTabWidget *tabs);

/// Leaves `pixels` around the text.
void set_margins(my_classes::CustomTextEditor *editor, int pixels);

/// Writes the document to `path` once the person has not written for `milliseconds`. The editor owns the timer.
QTimer *save_by_itself(my_classes::CustomTextEditor *editor, const QString &path, int milliseconds);

/// Marks misspelled words while they are written.
void mark_while_writing(my_classes::CustomTextEditor *editor);

/// A field in the window's tool bar in place of the dialog: Return finds the next occurrence, from the top after the
/// last.
QLineEdit *add_find_bar(QMainWindow *window, my_classes::CustomTextEditor *editor);

/// A dialog in which Return writes a line and Ctrl+Return presses its default button.
QDialog *dialog_with_editor(QWidget *parent);

/// Two editors beside each other, each with its language; without spelling where there is no dictionary of it.
QWidget *two_languages(const QString &left, const QString &right);

} // namespace recipes
