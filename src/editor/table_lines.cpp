// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/table_lines.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextList>
#include <QtGui/QTextTable>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <vector>

namespace my_classes {

namespace {

constexpr int k_dark = 128; // grey
constexpr int k_line = 1;   // pixel, which neighbours share

bool has_dark_lines(const QTextTableCell &cell, const QTextTableFormat &table)
{
    const QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (format.topBorderStyle() > QTextFrameFormat::BorderStyle_None)
        return qGray(format.topBorderBrush().color().rgb()) < k_dark;
    return table.border() > 0 && table.borderStyle() > QTextFrameFormat::BorderStyle_None &&
           qGray(table.borderBrush().color().rgb()) < k_dark;
}

/// Of a cell without its borders, as its first and its last paragraph tell.
QRectF inside(const QTextTableCell &cell, const QTextTableFormat &table)
{
    const QTextBlock first = cell.firstCursorPosition().block();
    const QTextBlock last = cell.lastCursorPosition().block();
    const QAbstractTextDocumentLayout *layout = first.document()->documentLayout();
    const QTextBlockFormat format = first.blockFormat();
    const int levels = format.indent() + (first.textList() ? first.textList()->format().indent() : 0);
    const qreal indent = format.leftMargin() + levels * first.document()->indentWidth();
    const QTextTableCellFormat own = cell.format().toTableCellFormat();
    const auto padding = [&](QTextFormat::Property side) {
        return own.hasProperty(side) ? own.doubleProperty(side) : table.cellPadding();
    };
    QRectF rect = layout->blockBoundingRect(first);
    rect.setBottom(layout->blockBoundingRect(last).bottom() + last.blockFormat().bottomMargin());
    return rect.adjusted(-indent - padding(QTextFormat::TableCellLeftPadding),
                         -format.topMargin() - padding(QTextFormat::TableCellTopPadding),
                         format.rightMargin() + padding(QTextFormat::TableCellRightPadding),
                         padding(QTextFormat::TableCellBottomPadding));
}

void draw_row(QPainter *painter, const QTextTable *table, int row)
{
    const QTextTableFormat format = table->format();
    std::vector<QRectF> cells;
    qreal top = 1e9;
    qreal bottom = 0;
    for (int column = 0; column < table->columns(); ++column) {
        const QTextTableCell cell = table->cellAt(row, column);
        if (cell.column() != column || cell.row() != row || !has_dark_lines(cell, format))
            continue;
        cells.push_back(inside(cell, format));
        top = std::min(top, cells.back().top());
        if (cell.rowSpan() == 1)
            bottom = std::max(bottom, cells.back().bottom());
    }
    for (const QRectF &cell : cells)
        painter->drawRect(QRectF(QPointF(cell.left() - k_line, top - k_line),
                                 QPointF(cell.right(), std::max(bottom, cell.bottom()))));
}

} // namespace

void draw_readable_table_lines(const QTextEdit *area)
{
    const QTextDocument *document = area->document();
    const QPalette palette = area->viewport()->palette();
    if (document->rootFrame()->childFrames().isEmpty() || qGray(palette.base().color().rgb()) >= k_dark)
        return;
    const QScrollBar *bar = area->horizontalScrollBar();
    QPainter painter(area->viewport());
    painter.translate(area->isRightToLeft() ? bar->value() - bar->maximum() : -bar->value(),
                      -area->verticalScrollBar()->value());
    painter.setPen(palette.text().color());
    const int end = area->cursorForPosition(area->viewport()->rect().bottomRight()).position();
    QTextBlock block = area->cursorForPosition({0, 0}).block();
    std::pair<const QTextTable *, int> drawn(nullptr, 0);
    for (; block.isValid() && block.position() <= end; block = block.next()) {
        const QTextTable *table = QTextCursor(block).currentTable();
        const std::pair row(table, table ? table->cellAt(block.position()).row() : 0);
        if (table && row != drawn)
            draw_row(&painter, table, row.second);
        drawn = row;
    }
}

} // namespace my_classes
