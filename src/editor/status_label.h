// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLabel>

namespace my_classes {

/// A line of plain text that takes the width it is given; where that is too little it ends in dots and its tool tip
/// shows it whole.
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

/// Where such a label stands: its text changes with every key press, and a layout would have the whole window laid out
/// and painted again for it.
class StatusPlace : public QWidget
{
    Q_OBJECT

public:
    /// Takes the label.
    explicit StatusPlace(StatusLabel *label);

    QSize minimumSizeHint() const override { return m_label->minimumSizeHint(); }
    QSize sizeHint() const override { return m_label->sizeHint(); }

protected:
    bool event(QEvent *event) override;

private:
    StatusLabel *m_label;
    QSize m_told; // the size hint that the layout knows
};

} // namespace my_classes
