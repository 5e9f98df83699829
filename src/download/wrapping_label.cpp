// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/wrapping_label.h"

#include <QtGui/QPainter>
#include <QtGui/QTextOption>

namespace my_classes {

WrappingLabel::WrappingLabel(QWidget *parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void WrappingLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QTextOption option(alignment());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.drawText(contentsRect(), text(), option);
}

} // namespace my_classes
