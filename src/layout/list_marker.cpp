// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/list_marker.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtGui/QTextList>

#include <algorithm>

namespace my_classes {

namespace {

using PaintContext = QAbstractTextDocumentLayout::PaintContext;

/// Qt draws check boxes as the style wants them; only its layout knows how.
void paint_check_box(QPainter *painter, const PaintContext &context, const QTextBlock &item)
{
    QTextDocument document;
    document.setDefaultFont(item.document()->defaultFont());
    document.setIndentWidth(item.document()->indentWidth());
    document.setDocumentMargin(0);
    QTextCursor cursor(&document);
    QTextBlockFormat format = item.blockFormat();
    format.setObjectIndex(-1);
    cursor.setBlockFormat(format);
    cursor.setBlockCharFormat(item.charFormat());
    cursor.createList(item.textList()->format());
    const QTextLine first = item.layout()->lineAt(0);
    document.setTextWidth(std::max(1.0, first.x() + first.width()));
    document.documentLayout()->setPaintDevice(item.document()->documentLayout()->paintDevice());
    PaintContext empty = context;
    empty.selections.clear();
    empty.cursorPosition = -1;
    empty.clip = QRectF();
    painter->save();
    painter->translate(item.layout()->position().toPoint());
    document.documentLayout()->draw(painter, empty);
    painter->restore();
}

void paint_text(QPainter *painter, const QPointF &place, const QString &text, const QFont &font,
                Qt::LayoutDirection direction, QPaintDevice *device)
{
    QTextLayout layout(text, font, device);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    layout.endLayout();
    layout.draw(painter, place);
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

} // namespace

void paint_list_marker(QPainter *painter, const PaintContext &context, const QTextBlock &item)
{
    const QTextListFormat::Style style = item.textList()->format().style();
    const QTextLayout *layout = item.layout();
    if (style == QTextListFormat::ListStyleUndefined || layout->lineCount() == 0)
        return;
    if (item.blockFormat().marker() != QTextBlockFormat::MarkerType::NoMarker) {
        paint_check_box(painter, context, item);
        return;
    }
    QPaintDevice *device = item.document()->documentLayout()->paintDevice();
    const QTextCharFormat format = item.charFormat();
    const QFont font = device ? QFont(format.font().resolve(item.document()->defaultFont()), device)
                              : format.font().resolve(item.document()->defaultFont());
    const QFontMetrics metrics(font);
    const bool is_number = style <= QTextListFormat::ListDecimal;
    const QString text = is_number ? item.textList()->itemText(item) : QString();
    const int bullet = metrics.lineSpacing() / 3;
    const QSizeF size = is_number ? QSizeF(metrics.horizontalAdvance(text), metrics.height()) : QSizeF(bullet, bullet);

    const QRectF line = layout->lineAt(0).naturalTextRect();
    const qreal space = metrics.horizontalAdvance(u' ');
    const bool is_reversed = item.textDirection() == Qt::RightToLeft;
    const QPoint start = layout->position().toPoint() + line.topLeft().toPoint();
    const qreal x = start.x() + (is_reversed ? line.width() + space : -space - size.width());
    const int middle = start.y() + metrics.height() / 2;
    const QRectF area(QPointF(x, middle - size.height() / 2), size);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QTextCharFormat selected = selected_format(item, context);
    painter->fillRect(area, selected.background());
    const QBrush brush = context.palette.brush(QPalette::Text);
    if (is_number) {
        QTextCharFormat shown = format;
        shown.merge(selected);
        painter->setPen(QPen(shown.foreground().style() == Qt::NoBrush ? brush : shown.foreground(), 0));
        paint_text(painter, QPointF(area.left(), start.y()), text, font, item.textDirection(), device);
    } else {
        paint_bullet(painter, area, style, brush);
    }
    painter->restore();
}

} // namespace my_classes
