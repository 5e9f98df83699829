// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLabel>

namespace my_classes {

/// A line of plain text that takes the width it is given; where that is too little it ends in dots and its tool tip
/// shows it whole. Its text does not move the layout, so that it may change with every key press.
class StatusLabel : public QLabel
{
    Q_OBJECT

public:
    explicit StatusLabel(QWidget *parent);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace my_classes
