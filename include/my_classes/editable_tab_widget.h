// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace my_classes {

class TitleField;

/// Tab widget whose titles are renamed in place and kept unique, and whose tabs close after confirmation.
///
/// A double click on a title, or F2 on the tab bar, opens a field over it; Return renames, Escape and leaving the field
/// abandon. The field follows its page where tabs are moved, and goes with it. What is wrong with a title is told in
/// the status bar of the window, if that is a QMainWindow. Indices are tab positions. GUI thread only.
class MY_CLASSES_EXPORT EditableTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    /// Without tabs; they can be moved and closed.
    explicit EditableTabWidget(QWidget *parent = nullptr);

    /// Opens the field over a title. A field that is open already is not closed.
    void editTabTitle(int index);
    /// Gives the tab the title in the field, without white space around it, and closes the field; leaves the field open
    /// if the title is empty or taken. Nothing without a field.
    void finishEditTabTitle(int index);
    /// Emits tab_moved().
    void handle_tab_moved(int from_index, int to_index);
    /// Removes a tab if the user confirms it. The page is the host's: it is not deleted.
    void closeTab(int index);
    /// Verifica si el título ya existe en otras pestañas: true if no tab but the one at `current_index` has it.
    bool isTabTitleUnique(const QString &title, int current_index) const;
    /// Asks `msg` with Yes and No, for hosts; No is the default.
    QMessageBox::StandardButton msgbox_confirm(const QString &msg);

    /// Gives the tab `title`, without white space around it, as the person would. False, and nothing renamed, if it is
    /// empty or taken, or there is no such tab.
    bool rename_tab(int index, const QString &title);
    /// `wish` without white space around it, or that with the first number from 2 on that no tab has: "Notes 2".
    QString unique_title(const QString &wish) const;

    /// Asked before a tab is closed by the person; true closes it. It may open boxes, and delete page and tab widget.
    using CloseQuestion = std::function<bool(QWidget *page, const QString &title)>;
    /// Takes the place of the confirmation box; an empty `question` brings the box back.
    void set_close_question(CloseQuestion question);

    bool eventFilter(QObject *obj, QEvent *event) override;

    /// The field open over a title, or null.
    QLineEdit *line_edit = nullptr;

Q_SIGNALS:
    /// As QTabBar reports it: a drag over several tabs may come in steps, each the move of the tab that makes way.
    void tab_moved(int from_index, int to_index);
    /// The person has closed the tab that was called `title`, and it is gone.
    void tab_deleted(const QString &title);
    /// By the person or rename_tab(), if the title has changed.
    void tab_renamed(QWidget *page, const QString &before, const QString &after);
    /// By closeTab(), right before tab_deleted(); the page, which is the host's now, is still alive.
    void tab_removed(QWidget *page, const QString &title);

protected:
    bool event(QEvent *event) override;
    void tabRemoved(int index) override;

private:
    QList<QPointer<TitleField>> fields() const;
    void finish(TitleField *field, int index);
    void confirm(TitleField *field);
    void close_field(TitleField *field);
    bool field_event(TitleField *field, QEvent *event);
    bool may_close(QWidget *page, const QString &title);

    QPointer<QWidget> m_focus_before_field;
    CloseQuestion m_close_question;
};

} // namespace my_classes
