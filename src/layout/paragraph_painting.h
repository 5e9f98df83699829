// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/paragraph_lines.h"

#include <QtGui/QAbstractTextDocumentLayout>

namespace my_classes {

/// Draws a paragraph that has its lines, where its layout is. Selections over the full width end at `clip`.
void paint_paragraph(QPainter *painter, const QAbstractTextDocumentLayout::PaintContext &context,
                     const QTextBlock &block, const QRectF &clip, int cursor_width);

} // namespace my_classes
