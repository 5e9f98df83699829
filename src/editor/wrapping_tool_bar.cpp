// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/wrapping_tool_bar.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QActionEvent>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace my_classes {

WrappingToolBar::WrappingToolBar(const QString &title, QWidget *parent)
    : QToolBar(title, parent)
{
    // The layout goes on creating the items, but neither places nor hides them.
    layout()->setEnabled(false);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void WrappingToolBar::focus_first_item()
{
    for (const Item &item : items()) {
        if (item.widget->isEnabled() && item.widget->focusPolicy() & Qt::TabFocus) {
            item.widget->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

QSize WrappingToolBar::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    QSize size;
    for (const Item &item : items())
        size = size.expandedTo(item.size);
    return size.grownBy(margins);
}

QSize WrappingToolBar::sizeHint() const
{
    // All in one row.
    const QMargins margins = layout()->contentsMargins();
    int width = 0;
    for (const Item &item : items())
        width += item.size.width() + spacing();
    return {width - spacing() + margins.left() + margins.right(), minimumSizeHint().height()};
}

bool WrappingToolBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest)); // the layout, disabled, does not ask
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            Q_EMIT left();
            return true;
        }
        auto *button = qobject_cast<QToolButton *>(watched);
        if (button && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            button->click();
            return true;
        }
    }
    return QToolBar::eventFilter(watched, event);
}

void WrappingToolBar::actionEvent(QActionEvent *event)
{
    QToolBar::actionEvent(event);
    if (event->type() == QEvent::ActionAdded) {
        QWidget *widget = widgetForAction(event->action());
        widget->installEventFilter(this);
        if (qobject_cast<QToolButton *>(widget))
            widget->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the text
    }
    updateGeometry();
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

bool WrappingToolBar::event(QEvent *event)
{
    const bool handled = QToolBar::event(event);
    const bool changes_sizes = event->type() == QEvent::LayoutRequest || event->type() == QEvent::StyleChange ||
                               event->type() == QEvent::LayoutDirectionChange;
    if (event->type() == QEvent::Show || (changes_sizes && isVisible())) // a hidden bar need not be right
        place_items();
    return handled;
}

void WrappingToolBar::resizeEvent(QResizeEvent *event)
{
    QToolBar::resizeEvent(event);
    place_items();
}

std::vector<WrappingToolBar::Item> WrappingToolBar::items() const
{
    std::vector<Item> all;
    const QList<QAction *> listed = actions();
    for (const QAction *action : listed) {
        QWidget *widget = widgetForAction(const_cast<QAction *>(action));
        if (widget && action->isVisible()) {
            const QSize size = widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize());
            all.push_back({widget, size, action->isSeparator()});
        }
    }
    return all;
}

std::vector<WrappingToolBar::Place> WrappingToolBar::places(int width, int *height) const
{
    const QMargins margins = layout()->contentsMargins();
    const int right = width - margins.right();
    std::vector<Place> all;
    std::vector<Place>::size_type row_start = 0;
    int x = margins.left();
    int y = margins.top();
    int row_height = 0;
    bool ends_in_separator = false;

    const auto end_row = [&] {
        if (row_start < all.size() && ends_in_separator)
            all.back().rectangle = QRect();
        for (auto i = row_start; i < all.size(); ++i)
            all[i].rectangle.translate(0, (row_height - all[i].rectangle.height()) / 2);
        row_start = all.size();
    };
    for (const Item &item : items()) {
        const bool starts_row = x == margins.left();
        if (!starts_row && x + item.size.width() > right) {
            end_row();
            x = margins.left();
            y += row_height + spacing();
            row_height = 0;
        }
        if (item.is_separator && x == margins.left()) {
            all.push_back({item.widget, QRect()}); // nothing to separate at the start of a row
            continue;
        }
        const int item_width = std::min(item.size.width(), std::max(right - x, 1));
        all.push_back({item.widget, QRect(x, y, item_width, item.size.height())});
        x += item_width + spacing();
        row_height = std::max(row_height, item.size.height());
        ends_in_separator = item.is_separator;
    }
    end_row();
    *height = y + row_height + margins.bottom();
    return all;
}

int WrappingToolBar::spacing() const
{
    return style()->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, this);
}

void WrappingToolBar::place_items()
{
    int height = 0;
    for (const Place &place : places(width(), &height)) {
        if (!place.rectangle.isNull())
            place.widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place.rectangle));
        place.widget->setVisible(!place.rectangle.isNull());
    }
    const QList<QAction *> listed = actions();
    for (QAction *action : listed) {
        QWidget *widget = widgetForAction(action);
        if (widget && !action->isVisible())
            widget->hide();
    }
    // Not as a height for a width: layouts ask the bar's own layout for that, which knows of one row.
    if (height != minimumHeight() || height != maximumHeight())
        setFixedHeight(height);
}

} // namespace my_classes
