// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLabel>

namespace my_classes {

/// Label of plain text that also breaks inside words, such as addresses and file names, which QLabel would cut off.
class WrappingLabel : public QLabel
{
public:
    explicit WrappingLabel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace my_classes
