// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/editable_tab_widget.h>

namespace my_classes {

EditableTabWidget::EditableTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
}
void EditableTabWidget::editTabTitle(int) {}
void EditableTabWidget::finishEditTabTitle(int) {}
void EditableTabWidget::handle_tab_moved(int, int) {}
void EditableTabWidget::closeTab(int) {}
bool EditableTabWidget::isTabTitleUnique(const QString &, int) const
{
    return true;
}
QMessageBox::StandardButton EditableTabWidget::msgbox_confirm(const QString &)
{
    return QMessageBox::No;
}
bool EditableTabWidget::eventFilter(QObject *obj, QEvent *event)
{
    return QTabWidget::eventFilter(obj, event);
}
bool EditableTabWidget::event(QEvent *event)
{
    return QTabWidget::event(event);
}

} // namespace my_classes
