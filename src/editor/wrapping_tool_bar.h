// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QToolBar>

#include <vector>

namespace my_classes {

/// A tool bar that wraps onto further rows where it is too narrow, and whose buttons the keyboard reaches.
///
/// QToolBar's own answer to a narrow window is a menu that leaves widgets out unless the bar is docked. Its items are
/// created and found as ever; only where they stand is decided here.
class WrappingToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit WrappingToolBar(const QString &title, QWidget *parent = nullptr);

    /// Gives the focus to the first item that takes it.
    void focus_first_item();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Escape was pressed in an item.
    void left();

protected:
    void actionEvent(QActionEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Item
    {
        QWidget *widget;
        QSize size;
        bool is_separator;
    };
    struct Place
    {
        QWidget *widget;
        QRect rectangle; // null: not shown
    };

    std::vector<Item> items() const;
    std::vector<Place> places(int width, int *height) const;
    int spacing() const;
    void place_items();
};

} // namespace my_classes
