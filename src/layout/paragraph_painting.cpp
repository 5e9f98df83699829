// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/paragraph_painting.h"

#include "layout/document_layout.h"
#include "layout/list_marker.h"

#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtGui/QTextList>

namespace my_classes {

namespace {

using PaintContext = QAbstractTextDocumentLayout::PaintContext;
using Selection = QAbstractTextDocumentLayout::Selection;
using FormatRange = QTextLayout::FormatRange;

/// The line with the cursor, and the end of the paragraph if that is the last line.
FormatRange line_range(const QTextBlock &block, const Selection &selection)
{
    const QTextLine line = block.layout()->lineForTextPosition(selection.cursor.position() - block.position());
    int length = line.textLength();
    if (line.textStart() + length == block.length() - 1)
        ++length;
    return {line.textStart(), length, selection.format};
}

QList<FormatRange> selected_ranges(const QTextBlock &block, const PaintContext &context)
{
    QList<FormatRange> ranges;
    for (const Selection &selection : context.selections) {
        const int start = selection.cursor.selectionStart() - block.position();
        const int end = selection.cursor.selectionEnd() - block.position();
        if (start < end) {
            if (start < block.length() && end > 0)
                ranges.append({start, end - start, selection.format});
        } else if (selection.format.hasProperty(QTextFormat::FullWidthSelection) &&
                   block.contains(selection.cursor.position())) {
            ranges.append(line_range(block, selection));
        }
    }
    return ranges;
}

void paint_background(QPainter *painter, const QTextBlock &block, const QRectF &rectangle)
{
    const QBrush brush = block.blockFormat().background();
    if (brush.style() == Qt::NoBrush)
        return;
    QRectF area = rectangle;
    if (block.document()->pageSize().width() <= 0)
        area.setRight(std::max(area.right(), block.document()->size().width()));
    if (brush.style() >= Qt::LinearGradientPattern && brush.style() <= Qt::ConicalGradientPattern) {
        painter->save();
        painter->setClipRect(area, Qt::IntersectClip);
        painter->fillRect(area, brush);
        painter->restore();
        return;
    }
    const QPointF origin = painter->brushOrigin();
    painter->setBrushOrigin(area.topLeft());
    painter->fillRect(area, brush);
    painter->setBrushOrigin(origin);
}

/// A rule is an empty paragraph with a line in it.
void paint_rule(QPainter *painter, const PaintContext &context, const QTextBlock &block, const QRectF &rectangle)
{
    const QTextBlockFormat format = block.blockFormat();
    if (!format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
        return;
    const qreal width = format.lengthProperty(QTextFormat::BlockTrailingHorizontalRulerWidth).value(rectangle.width());
    const qreal y = block.length() == 1 ? rectangle.center().y() : rectangle.bottom();
    const qreal x = rectangle.center().x();
    painter->save();
    const QBrush background = format.background();
    painter->setPen(background.style() == Qt::NoBrush ? context.palette.color(QPalette::Dark) : background.color());
    painter->drawLine(QLineF(x - width / 2, y, x + width / 2, y));
    painter->restore();
}

void paint_cursor(QPainter *painter, const PaintContext &context, const QTextBlock &block, int width)
{
    const QTextLayout *layout = block.layout();
    int position = context.cursorPosition - block.position();
    if (context.cursorPosition < -1) { // that far into what is being composed
        if (layout->preeditAreaText().isEmpty())
            return;
        position = layout->preeditAreaPosition() - (context.cursorPosition + 2);
    } else if (position < 0 || position >= block.length()) {
        return;
    }
    layout->drawCursor(painter, QPointF(0, 0), position, width);
}

} // namespace

void paint_paragraph(QPainter *painter, const PaintContext &context, const QTextBlock &block, const QRectF &clip,
                     int cursor_width)
{
    const QRectF rectangle = block.layout()->boundingRect().translated(block.layout()->position());
    paint_background(painter, block, rectangle);
    if (block.textList())
        paint_list_marker(painter, context, block);
    painter->setPen(context.palette.color(QPalette::Text));
    block.layout()->draw(painter, QPointF(0, 0), selected_ranges(block, context), clip);
    paint_cursor(painter, context, block, cursor_width);
    paint_rule(painter, context, block, rectangle);
}

void DocumentLayout::draw(QPainter *painter, const PaintContext &context)
{
    if (!is_current()) { // painted from inside an edit
        m_page = Page::of(document(), paintDevice());
        estimate_everything(false);
    }
    const bool everything = !context.clip.isValid();
    QRectF clip = context.clip; // selections over the full width end at the page's margins
    if (!everything && m_page.wraps())
        clip.setRight(std::min(clip.right(), documentSize().width() - to_pixels(m_page.right)));
    int index = everything ? 0 : m_heights.at(to_units(context.clip.top()) - m_page.top - m_overhang);
    QTextBlock block = document()->findBlockByNumber(index);
    for (; block.isValid(); block = block.next(), ++index) {
        if (!everything && to_pixels(top_of(index) - m_overhang) > context.clip.bottom())
            break;
        if (!block.isVisible())
            continue;
        blockBoundingRect(block); // gives it lines and a place
        paint_paragraph(painter, context, block, clip, m_cursor_width);
    }
}

} // namespace my_classes
