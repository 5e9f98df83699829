// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/list_marker.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtGui/QTextList>

#include <algorithm>

namespace my_classes {

namespace {

using PaintContext = QAbstractTextDocumentLayout::PaintContext;

/// Whose cross keeps a distance from the frame.
void paint_check_box(QPainter *painter, const QRectF &box, int distance, bool is_checked)
{
    painter->drawRect(box);
    if (!is_checked)
        return;
    const QRectF cross = box.adjusted(distance, distance, -distance, -distance);
    QPen pen = painter->pen();
    pen.setWidth(2);
    painter->setPen(pen);
    painter->drawLine(cross.topLeft(), cross.bottomRight());
    painter->drawLine(cross.bottomLeft(), cross.topRight());
}

void paint_number(QPainter *painter, qreal x, const QTextBlock &item, const QFont &font)
{
    QTextLayout layout(item.textList()->itemText(item), font, item.document()->documentLayout()->paintDevice());
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(item.textDirection());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    layout.endLayout();
    const QPoint top =
        item.layout()->position().toPoint() + item.layout()->lineAt(0).naturalTextRect().topLeft().toPoint();
    layout.draw(painter, QPointF(x, top.y()));
}

void paint_bullet(QPainter *painter, const QRectF &area, QTextListFormat::Style style, const QBrush &brush)
{
    switch (style) {
    case QTextListFormat::ListSquare:
        painter->fillRect(area, brush);
        break;
    case QTextListFormat::ListCircle:
        painter->setPen(QPen(brush, 0));
        painter->drawEllipse(area.translated(0.5, 0.5));
        break;
    default:
        painter->setBrush(brush);
        painter->setPen(Qt::NoPen);
        painter->drawEllipse(area);
    }
}

/// What a selection that reaches the item from further up makes of it; nothing where none does.
QTextCharFormat selected_format(const QTextBlock &item, const PaintContext &context)
{
    const auto &all = context.selections;
    const auto selection = std::find_if(all.crbegin(), all.crend(), [&item](const auto &one) {
        return one.cursor.selectionStart() < item.position() && one.cursor.selectionEnd() > item.position();
    });
    return selection == all.crend() ? QTextCharFormat() : selection->format;
}

bool is_number(const QTextBlock &item)
{
    return item.textList()->format().style() <= QTextListFormat::ListDecimal;
}

QFont marker_font(const QTextBlock &item)
{
    QPaintDevice *device = item.document()->documentLayout()->paintDevice();
    const QFont font = item.charFormat().font().resolve(item.document()->defaultFont());
    return device ? QFont(font, device) : font;
}

/// Of the bullet or number, or of it in a check box that has `margin`.
QRectF marker_area(const QTextBlock &item, const QFontMetrics &metrics, int margin)
{
    const QTextLayout *layout = item.layout();
    const int bullet = metrics.lineSpacing() / 3;
    const QSizeF size = is_number(item)
                            ? QSizeF(metrics.horizontalAdvance(item.textList()->itemText(item)), metrics.height())
                            : QSizeF(bullet, bullet);
    const QRectF line = layout->lineAt(0).naturalTextRect();
    const qreal space = metrics.horizontalAdvance(u' ');
    const QPoint start = layout->position().toPoint() + line.topLeft().toPoint();
    const bool is_reversed = item.textDirection() == Qt::RightToLeft;
    const qreal x = start.x() + (is_reversed ? line.width() + space : -space - size.width());
    const int middle = start.y() + metrics.height() / 2;
    return {QPointF(x - margin, middle - size.height() / 2), size}; // Qt does not spare right-to-left text either
}

} // namespace

void paint_list_marker(QPainter *painter, const PaintContext &context, const QTextBlock &item)
{
    const QTextListFormat::Style style = item.textList()->format().style();
    if (style == QTextListFormat::ListStyleUndefined || item.layout()->lineCount() == 0)
        return;
    const QFont font = marker_font(item);
    const QFontMetrics metrics(font);
    const auto marker = item.blockFormat().marker();
    const bool is_box = marker != QTextBlockFormat::MarkerType::NoMarker;
    const int margin = is_box ? metrics.lineSpacing() / 3 / 2 : 0;
    const QRectF area = marker_area(item, metrics, margin);
    const QRectF box = area.adjusted(-margin, -margin, margin, margin);
    const QTextCharFormat selected = selected_format(item, context);
    QTextCharFormat shown = item.charFormat();
    shown.merge(selected);
    const QBrush brush = context.palette.brush(QPalette::Text);
    const QPen pen(shown.foreground().style() == Qt::NoBrush ? brush : shown.foreground(), 0);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(box, selected.background());
    painter->setPen(pen);
    if (is_box)
        paint_check_box(painter, box, margin, marker == QTextBlockFormat::MarkerType::Checked);
    painter->setPen(pen);
    if (is_number(item))
        paint_number(painter, area.left(), item, font);
    else if (!is_box)
        paint_bullet(painter, area, style, brush);
    painter->restore();
}

} // namespace my_classes
