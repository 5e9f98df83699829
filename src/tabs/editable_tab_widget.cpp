// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "tabs/title_field.h"

#include <my_classes/editable_tab_widget.h>
#include <my_classes/my_msgboxes.h>

#include <QtGui/QFocusEvent>
#include <QtGui/QInputMethod>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

bool is_press(const QEvent *event, std::initializer_list<Qt::Key> keys)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *press = static_cast<const QKeyEvent *>(event);
    const bool is_plain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return is_plain && std::find(keys.begin(), keys.end(), press->key()) != keys.end();
}

/// Where the keys went when `page` was last used, or where it wants them, or the first place in it that takes them.
void focus_page(QWidget *page)
{
    QWidget *place = page->focusWidget() ? page->focusWidget() : page;
    if (place != page || page->focusProxy())
        return place->setFocus();
    do {
        if ((place->focusPolicy() & Qt::TabFocus) && place->isVisible() && place->isEnabled())
            return place->setFocus();
        place = place->nextInFocusChain();
    } while (place != page && page->isAncestorOf(place));
    page->setFocus();
}

} // namespace

EditableTabWidget::EditableTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabsClosable(true);
    setMovable(true);
    connect(tabBar(), &QTabBar::tabMoved, this, &EditableTabWidget::handle_tab_moved);
    connect(tabBar(), &QTabBar::tabBarDoubleClicked, this, &EditableTabWidget::editTabTitle);
    connect(this, &QTabWidget::tabCloseRequested, this, &EditableTabWidget::closeTab);
    tabBar()->installEventFilter(this); // F2
}

void EditableTabWidget::editTabTitle(int index)
{
    if (!line_edit)
        m_focus_before_field = QApplication::focusWidget();
    // An earlier field is forgotten, as ever: it stays until Return, Escape or the end of its page.
    auto *field = new TitleField(this, index);
    line_edit = field;
    connect(field, &QLineEdit::returnPressed, this, [this, field] { finish(field, field->index()); });
    field->installEventFilter(this);
    field->follow_tab();
    field->show();
    field->setFocus(); // last: who hears of it may do anything
}

void EditableTabWidget::finishEditTabTitle(int index)
{
    if (line_edit)
        finish(static_cast<TitleField *>(line_edit), index);
}

void EditableTabWidget::finish(TitleField *field, int index)
{
    const QString title = field->text().trimmed();
    if (title.isEmpty())
        return field->refuse(tr("El título de la pestaña no puede estar vacío."));
    if (!isTabTitleUnique(title, index))
        return field->refuse(tr("El título de la pestaña ya existe. Por favor, elige otro título."));

    const QPointer<EditableTabWidget> still_here(this);
    const QPointer<QWidget> page = widget(index);
    const QString before = tabText(index);
    setTabText(index, title);
    close_field(field);
    if (!still_here)
        return;
    if (auto *status_bar = window()->findChild<QStatusBar *>(QString(), Qt::FindDirectChildrenOnly))
        status_bar->showMessage(QString());
    if (still_here && page && before != title)
        Q_EMIT tab_renamed(page, before, title);
}

bool EditableTabWidget::rename_tab(int index, const QString &title)
{
    const QString after = title.trimmed();
    QWidget *const page = widget(index);
    if (!page || after.isEmpty() || !isTabTitleUnique(after, index))
        return false;
    const QString before = tabText(index);
    if (before != after) {
        setTabText(index, after);
        Q_EMIT tab_renamed(page, before, after);
    }
    return true;
}

QString EditableTabWidget::unique_title(const QString &wish) const
{
    const QString first = wish.trimmed();
    QString title = first;
    for (int number = 2; !isTabTitleUnique(title, -1); ++number)
        title = u"%1 %2"_s.arg(first).arg(number).trimmed();
    return title;
}

/// Abandons the field, or it has done its work. Anything may be gone afterwards.
void EditableTabWidget::close_field(TitleField *field)
{
    if (field == line_edit)
        line_edit = nullptr;
    field->deleteLater();
    const QPointer<EditableTabWidget> still_here(this);
    const bool has_focus = field->window()->focusWidget() == field; // also when the window is about to be active again
    field->take_message_back();
    if (!still_here || !has_focus)
        return;
    if (m_focus_before_field && m_focus_before_field->isVisible())
        m_focus_before_field->setFocus();
    else if (currentWidget())
        focus_page(currentWidget());
}

void EditableTabWidget::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    const QPointer<EditableTabWidget> still_here(this);
    for (const QPointer<TitleField> &field : fields()) {
        if (still_here && field && field->index() == -1)
            close_field(field);
    }
}

QList<QPointer<TitleField>> EditableTabWidget::fields() const
{
    const auto found = findChildren<TitleField *>(QString(), Qt::FindDirectChildrenOnly);
    return {found.begin(), found.end()};
}

void EditableTabWidget::handle_tab_moved(int from_index, int to_index)
{
    Q_EMIT tab_moved(from_index, to_index);
}

void EditableTabWidget::set_close_question(CloseQuestion question)
{
    m_close_question = std::move(question);
}

void EditableTabWidget::closeTab(int index)
{
    const QPointer<QWidget> page = widget(index);
    if (!page)
        return;
    const QPointer<EditableTabWidget> still_here(this);
    const bool is_wanted = may_close(page, tabText(index));
    // The host may have moved, renamed or removed it meanwhile.
    const int index_now = still_here && page ? indexOf(page) : -1;
    if (!is_wanted || index_now == -1)
        return;
    const QString title = tabText(index_now);
    removeTab(index_now);
    if (still_here && page)
        Q_EMIT tab_removed(page, title);
    if (still_here)
        Q_EMIT tab_deleted(title);
}

bool EditableTabWidget::may_close(QWidget *page, const QString &title)
{
    if (m_close_question) {
        const CloseQuestion question = m_close_question; // outlives the tab widget, and a change of mind
        return question(page, title);
    }
    const QString msg =
        tr("Confirm delete '%1'?\n\nNote: this action becomes permanent after document save.").arg(title);
    return my_msgboxes::confirm_warning_yes_no(this, tr("Document Section Deletion"), msg) == QMessageBox::Yes;
}

bool EditableTabWidget::isTabTitleUnique(const QString &title, int current_index) const
{
    for (int i = 0; i < count(); ++i) {
        if (i != current_index && tabText(i) == title)
            return false;
    }
    return true;
}

QMessageBox::StandardButton EditableTabWidget::msgbox_confirm(const QString &msg)
{
    // As QMessageBox::question(), but on the heap: the tab widget may die, and its box with it.
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Question, tr("Message"), msg, QMessageBox::Yes | QMessageBox::No, this));
    box->setDefaultButton(QMessageBox::No);
    const int answer = box->exec();
    if (!box)
        return QMessageBox::No;
    delete box.data();
    return static_cast<QMessageBox::StandardButton>(answer);
}

bool EditableTabWidget::eventFilter(QObject *obj, QEvent *event)
{
    if (obj == tabBar() && event->type() == QEvent::Paint) { // which whatever moves a tab ends in
        for (const QPointer<TitleField> &field : fields())
            field->follow_tab();
    }
    if (obj == tabBar() && event->type() == QEvent::KeyPress && is_press(event, {Qt::Key_F2}) && currentIndex() != -1) {
        editTabTitle(currentIndex());
        return true;
    }
    if (auto *field = qobject_cast<TitleField *>(obj); field && field_event(field, event))
        return true;
    return QTabWidget::eventFilter(obj, event);
}

/// True if the event is dealt with.
bool EditableTabWidget::field_event(TitleField *field, QEvent *event)
{
    if (is_press(event, {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})) {
        if (event->type() == QEvent::ShortcutOverride)
            event->accept(); // else a shortcut of the window would have it
        else if (is_press(event, {Qt::Key_Escape}))
            close_field(field);
        else
            confirm(field);
        return true;
    }
    const bool abandoned = field == line_edit && event->type() == QEvent::FocusOut &&
                           static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason; // the context menu
    if (abandoned)
        close_field(field);
    return abandoned;
}

/// As Return does in a line edit, which then would pass the key on to a dialog's default button, and does not survive
/// being deleted by a slot.
void EditableTabWidget::confirm(TitleField *field)
{
    const QPointer<TitleField> still_here(field);
    QGuiApplication::inputMethod()->commit();
    if (still_here)
        Q_EMIT field->returnPressed();
}

bool EditableTabWidget::event(QEvent *event)
{
    // A hook for QEvent::WindowActivate, which has no action of its own.
    return QTabWidget::event(event);
}

} // namespace my_classes
