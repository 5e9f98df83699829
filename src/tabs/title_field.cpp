// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "tabs/title_field.h"

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <utility>

namespace my_classes {

using namespace Qt::StringLiterals;

TitleField::TitleField(QTabWidget *tabs, int index)
    : QLineEdit(tabs->tabText(index), tabs)
    , m_tabs(tabs)
    , m_page(tabs->widget(index))
{
    setAccessibleName(tr("Tab title"));
    selectAll();
}

int TitleField::index() const
{
    return m_page ? m_tabs->indexOf(m_page) : -1;
}

void TitleField::follow_tab()
{
    const QTabBar *bar = m_tabs->tabBar();
    QRect place = bar->tabRect(index());
    // Left to right in the coordinates of the tab bar, unmapped, as ever: it lies at the top left of the tab widget.
    if (isRightToLeft())
        place.translate(bar->pos());
    setGeometry(place);
}

void TitleField::refuse(const QString &reason)
{
    const bool is_dark = palette().base().color().lightness() < 128;
    setStyleSheet(is_dark ? u"color: #ff8a80;"_s : u"color: red;"_s);
    setAccessibleDescription(reason);
    setFocus();
    auto *main_window = qobject_cast<QMainWindow *>(window());
    if (!main_window)
        return;
    m_message = reason;
    m_status_bar = main_window->statusBar();
    m_status_bar->showMessage(reason); // last: who hears of it may do anything
}

void TitleField::take_message_back()
{
    const QString message = std::exchange(m_message, {});
    if (m_status_bar && !message.isEmpty() && m_status_bar->currentMessage() == message)
        m_status_bar->clearMessage();
}

} // namespace my_classes
