// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QAbstractTextDocumentLayout>

namespace my_classes {

/// Draws the bullet or number of a list item that has its lines, beside its first one.
void paint_list_marker(QPainter *painter, const QAbstractTextDocumentLayout::PaintContext &context,
                       const QTextBlock &item);

} // namespace my_classes
