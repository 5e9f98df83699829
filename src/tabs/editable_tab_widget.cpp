// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/editable_tab_widget.h>
#include <my_classes/my_msgboxes.h>

#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

bool is_key(const QEvent *event, Qt::Key key)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *press = static_cast<const QKeyEvent *>(event);
    return press->key() == key && press->modifiers() == Qt::NoModifier;
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
    // An earlier field is forgotten, as ever: it stays until Escape or the end of the tab widget.
    line_edit = new QLineEdit(this);
    line_edit->setAccessibleName(tr("Tab title"));
    line_edit->setText(tabText(index));
    line_edit->selectAll();
    line_edit->setFocus();
    connect(line_edit, &QLineEdit::returnPressed, this, [this, index] { finishEditTabTitle(index); });
    line_edit->installEventFilter(this);
    // In the coordinates of the tab bar, unmapped: it lies at the top left of the tab widget.
    line_edit->setGeometry(tabBar()->tabRect(index));
    line_edit->show();
}

void EditableTabWidget::finishEditTabTitle(int index)
{
    if (!line_edit)
        return;
    const QString new_title = line_edit->text().trimmed();
    if (new_title.isEmpty()) {
        refuse_title(tr("El título de la pestaña no puede estar vacío."));
        return;
    }
    if (!isTabTitleUnique(new_title, index)) {
        refuse_title(tr("El título de la pestaña ya existe. Por favor, elige otro título."));
        return;
    }
    setTabText(index, new_title);
    close_field(line_edit);
    if (auto *status_bar = window()->findChild<QStatusBar *>(QString(), Qt::FindDirectChildrenOnly))
        status_bar->showMessage(QString());
}

void EditableTabWidget::refuse_title(const QString &reason)
{
    if (auto *main_window = qobject_cast<QMainWindow *>(window()))
        main_window->statusBar()->showMessage(reason);
    line_edit->setStyleSheet(u"color: red;"_s);
    line_edit->setAccessibleDescription(reason);
    line_edit->setFocus();
}

/// The focus goes back to where it was, if it is still in the field.
void EditableTabWidget::close_field(QLineEdit *field)
{
    if (field == line_edit)
        line_edit = nullptr;
    if (field->hasFocus() && m_focus_before_field)
        m_focus_before_field->setFocus();
    field->deleteLater();
}

void EditableTabWidget::handle_tab_moved(int from_index, int to_index)
{
    Q_EMIT tab_moved(from_index, to_index);
}

void EditableTabWidget::closeTab(int index)
{
    const QPointer<QWidget> page = widget(index);
    if (!page)
        return;
    const QString title = tabText(index);
    const QString msg =
        tr("Confirm delete '%1'?\n\nNote: this action becomes permanent after document save.").arg(title);

    const QPointer<EditableTabWidget> still_here(this);
    const QMessageBox::StandardButton reply =
        my_msgboxes::confirm_warning_yes_no(this, tr("Document Section Deletion"), msg);
    if (reply != QMessageBox::Yes || !still_here)
        return;
    const int index_now = indexOf(page); // the host may have moved or removed it meanwhile
    if (index_now == -1)
        return;
    removeTab(index_now);
    Q_EMIT tab_deleted(title);
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
    if (obj == tabBar() && event->type() == QEvent::KeyPress && is_key(event, Qt::Key_F2) && currentIndex() != -1) {
        editTabTitle(currentIndex());
        return true;
    }
    if (auto *field = qobject_cast<QLineEdit *>(obj); field && field_event(field, event))
        return true;
    return QTabWidget::eventFilter(obj, event);
}

/// True if the event is dealt with.
bool EditableTabWidget::field_event(QLineEdit *field, QEvent *event)
{
    if (is_key(event, Qt::Key_Escape)) {
        if (event->type() == QEvent::ShortcutOverride)
            event->accept(); // else a shortcut of the window would have it
        else
            close_field(field);
        return true;
    }
    const bool abandoned = field == line_edit && event->type() == QEvent::FocusOut &&
                           static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason; // the context menu
    if (abandoned)
        close_field(field);
    return abandoned;
}

bool EditableTabWidget::event(QEvent *event)
{
    // A hook for QEvent::WindowActivate, which has no action of its own.
    return QTabWidget::event(event);
}

} // namespace my_classes
