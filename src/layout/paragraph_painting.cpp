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

bool is_rule(const QTextBlockFormat &format)
{
    return format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

void paint_background(QPainter *painter, const QTextBlock &block, const QRectF &rectangle)
{
    const QTextBlockFormat format = block.blockFormat();
    const QBrush brush = format.background();
    if (brush.style() == Qt::NoBrush || is_rule(format)) // that of a rule is the colour of its line
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
    if (!is_rule(format))
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

/// In the paragraph; -1 if it is in another one.
int cursor_position(const PaintContext &context, const QTextBlock &block)
{
    const QTextLayout *layout = block.layout();
    const int position = context.cursorPosition - block.position();
    if (context.cursorPosition < -1) // that far into what is being composed
        return layout->preeditAreaText().isEmpty() ? -1 : layout->preeditAreaPosition() - (context.cursorPosition + 2);
    return position < block.length() ? std::max(-1, position) : -1;
}

void paint_text(QPainter *painter, const PaintContext &context, const QTextBlock &block, const QRectF &clip,
                int cursor_width)
{
    QTextLayout *layout = block.layout();
    const int cursor = cursor_position(context, block);
    // Where a line starts, the cursor is as high as the last letter of the line before, if Qt still has its glyphs.
    const bool has_glyphs = layout->cacheEnabled();
    if (cursor > 0 && layout->lineForTextPosition(cursor).textStart() == cursor)
        layout->setCacheEnabled(false);
    layout->draw(painter, QPointF(0, 0), selected_ranges(block, context), clip);
    if (cursor >= 0)
        layout->drawCursor(painter, QPointF(0, 0), cursor, cursor_width);
    layout->setCacheEnabled(has_glyphs);
}

bool reaches(const QTextBlock &block, const QRectF &rectangle, const QRectF &clip)
{
    const auto is_inside = [&clip](qreal top, qreal bottom) { return bottom >= clip.top() && top <= clip.bottom(); };
    if (is_inside(rectangle.top(), rectangle.bottom()))
        return true;
    const qreal outside = to_pixels(overhang(block, to_units(rectangle.height())));
    return outside > 0 && is_inside(rectangle.top() - outside, rectangle.bottom() + outside);
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
    paint_text(painter, context, block, clip, cursor_width);
    paint_rule(painter, context, block, rectangle);
}

void DocumentLayout::draw(QPainter *painter, const PaintContext &context)
{
    if (!is_current()) { // painted from inside an edit
        m_page = present_page();
        estimate_everything(false);
    }
    const bool everything = !context.clip.isValid();
    QRectF clip = context.clip; // selections and pictures end at the page's side margins and at its bottom
    if (!everything && m_page.wraps()) {
        clip.setLeft(std::max(clip.left(), to_pixels(m_page.left)));
        clip.setRight(std::min(clip.right(), documentSize().width() - to_pixels(m_page.right)));
        clip.setBottom(std::min(clip.bottom(), documentSize().height()));
    }
    int index = everything ? 0 : m_heights.at(to_units(context.clip.top()) - m_page.top - m_overhang);
    QTextBlock block = document()->findBlockByNumber(index);
    for (; block.isValid(); block = block.next(), ++index) {
        if (!everything && to_pixels(top_of(index) - m_overhang) > context.clip.bottom())
            break;
        if (!block.isVisible())
            continue;
        const QRectF rectangle = blockBoundingRect(block); // gives it lines and a place
        if (!everything && !reaches(block, rectangle, context.clip))
            continue;
        paint_paragraph(painter, context, block, clip, m_cursor_width);
    }
}

} // namespace my_classes
