// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_focus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace my_classes {

namespace {

template<typename Ancestor>
const Ancestor *nearest(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (const auto *ancestor = qobject_cast<const Ancestor *>(parent))
            return ancestor;
    }
    return nullptr;
}

/// Remembers for the length of a key press that it is a tab bar's: the pages that it shows appear meanwhile.
class TabBarKeys : public QObject
{
public:
    using QObject::QObject;

    static TabBarKeys *instance()
    {
        static QPointer<TabBarKeys> keys;
        if (!keys)
            keys = new TabBarKeys(QCoreApplication::instance());
        return keys;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            pressed_in = watched;
            QMetaObject::invokeMethod(
                this, [this] { pressed_in = nullptr; }, Qt::QueuedConnection);
        } else if (event->type() == QEvent::MouseButtonPress) {
            pressed_in = nullptr;
        }
        return false;
    }

    QPointer<QObject> pressed_in;
};

/// Whether `holder` is a part of the tab widget that pages are opened by, or one of its other pages.
bool is_tab_widgets(const QTabWidget *tabs, const QWidget *holder)
{
    if (holder == tabs->tabBar())
        return TabBarKeys::instance()->pressed_in != holder;
    for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::TopRightCorner}) {
        const QWidget *widget = tabs->cornerWidget(corner);
        if (widget && (widget == holder || widget->isAncestorOf(holder)))
            return true;
    }
    return false;
}

} // namespace

bool may_take_focus(const QWidget *editor)
{
    const QWidget *window = editor->window();
    const QWidget *holder = window->focusWidget();
    if (!holder || holder->isAncestorOf(editor) || !holder->isVisibleTo(window))
        return true;
    if (editor->isAncestorOf(holder))
        return false;
    const auto *pages = nearest<QStackedWidget>(editor);
    if (pages && pages->isAncestorOf(holder))
        return true;
    const auto *tabs = nearest<QTabWidget>(editor);
    return tabs && is_tab_widgets(tabs, holder);
}

void watch_tab_bar(const QWidget *page)
{
    if (const auto *tabs = nearest<QTabWidget>(page))
        tabs->tabBar()->installEventFilter(TabBarKeys::instance());
}

} // namespace my_classes
