// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/document_layout.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <optional>

namespace my_classes {

namespace {

struct Hit
{
    int position; // in the paragraph
    bool is_on_text;
};

/// `point` is relative to the paragraph's layout. Text that is being composed counts, as callers expect.
Hit hit_lines(const QTextLayout *layout, const QPointF &point, Qt::HitTestAccuracy accuracy)
{
    Hit hit{0, false};
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const QRectF text = line.naturalTextRect();
        if (text.bottom() <= point.y()) {
            hit.position = line.textStart() + line.textLength();
        } else if (text.top() <= point.y()) {
            hit.is_on_text = text.left() <= point.x() && point.x() <= text.right();
            hit.position = line.xToCursor(point.x(), accuracy == Qt::ExactHit ? QTextLine::CursorOnCharacter
                                                                              : QTextLine::CursorBetweenCharacters);
            break;
        } else {
            hit.position = std::min(hit.position, line.textStart());
        }
    }
    return hit;
}

} // namespace

/// What the paragraph's lines cover.
QRectF DocumentLayout::lines_of(const QTextBlock &block) const
{
    blockBoundingRect(block); // gives it lines and a place
    return block.layout()->boundingRect().translated(block.layout()->position());
}

int DocumentLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const
{
    if (!is_current())
        return -1;
    // The first paragraph that ends there or below.
    const Units y = to_units(point.y()) - m_page.top - m_overhang - 1;
    QTextBlock block = document()->findBlockByNumber(m_heights.at(y));
    QRectF rectangle = lines_of(block);
    for (QTextBlock next = block.next(); next.isValid() && (!block.isVisible() || point.y() > rectangle.bottom());
         next = block.next()) {
        block = next;
        rectangle = lines_of(block);
    }
    Hit hit{0, false};
    if (point.y() > rectangle.bottom())
        hit.position = block.length() - 1;
    else if (point.y() >= rectangle.top())
        hit = hit_lines(block.layout(), point - block.layout()->position(), accuracy);
    if (accuracy == Qt::ExactHit && !hit.is_on_text)
        return -1;
    return block.position() + hit.position;
}

} // namespace my_classes
