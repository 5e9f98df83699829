// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/status_label.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <utility>

namespace my_classes {

StatusLabel::StatusLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize StatusLabel::minimumSizeHint() const
{
    return {1, fontMetrics().height()};
}

QSize StatusLabel::sizeHint() const
{
    return minimumSizeHint();
}

bool StatusLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || fontMetrics().horizontalAdvance(text()) <= width())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
    return true;
}

void StatusLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const bool surely_fits = text().size() * metrics.maxWidth() <= width();
    const QString shown = surely_fits ? text() : metrics.elidedText(text(), Qt::ElideRight, width());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(),
                     QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                     shown);
}

StatusPlace::StatusPlace(StatusLabel *label)
    : m_label(label)
{
    label->setParent(this);
    setSizePolicy(label->sizePolicy());
}

bool StatusPlace::event(QEvent *event)
{
    if (event->type() == QEvent::Resize)
        m_label->resize(size());
    if (event->type() == QEvent::LayoutRequest && std::exchange(m_told, sizeHint()) != sizeHint())
        updateGeometry();
    return QWidget::event(event);
}

} // namespace my_classes
