// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/table_cells.h"

#include <QtCore/QPointer>
#include <QtGui/QTextTable>
#include <QtWidgets/QTextEdit>

namespace my_classes {

namespace {

CellRange cells_at(const QTextCursor &cursor, const QTextTable *table)
{
    CellRange cells{};
    if (cursor.hasComplexSelection()) {
        cursor.selectedTableCells(&cells.row, &cells.rows, &cells.column, &cells.columns);
    } else {
        const QTextTableCell cell = table->cellAt(cursor);
        cells = {cell.row(), cell.column(), cell.rowSpan(), cell.columnSpan()};
    }
    return cells;
}

bool has_cells(const QTextTable *table, const CellRange &cells)
{
    return cells.row + cells.rows <= table->rows() && cells.column + cells.columns <= table->columns();
}

void dress_like(QTextTableCell cell, const QTextTableCell &model)
{
    QTextTableCellFormat format = model.format().toTableCellFormat();
    format.setTableCellRowSpan(cell.rowSpan());
    format.setTableCellColumnSpan(cell.columnSpan());
    cell.setFormat(format); // that of characters in its first paragraph, too
    cell.firstCursorPosition().setBlockFormat(model.firstCursorPosition().blockFormat());
}

/// The first cell that starts at `from` or behind it, counted row by row, or before it; an invalid one if none does.
QTextTableCell cell_from(const QTextTable *table, int from, int step)
{
    const int columns = table->columns();
    for (int i = from; i >= 0 && i < table->rows() * columns; i += step) {
        const QTextTableCell cell = table->cellAt(i / columns, i % columns);
        if (cell.row() == i / columns && cell.column() == i % columns) // else a part of a wider one
            return cell;
    }
    return {};
}

bool enter(QTextEdit *text_edit, const QTextTableCell &cell)
{
    if (!cell.isValid())
        return false;
    const QPointer<QTextEdit> here(text_edit);
    text_edit->setTextCursor(cell.firstCursorPosition());
    if (here)
        text_edit->ensureCursorVisible();
    return true;
}

} // namespace

void change_table(QTextEdit *text_edit, const std::function<void(QTextTable *, const CellRange &)> &change)
{
    QTextCursor cursor = text_edit->textCursor();
    QTextTable *table = cursor.currentTable();
    if (!table || text_edit->isReadOnly())
        return;
    const CellRange cells = cells_at(cursor, table);
    // Qt does not survive a selection of cells that go.
    cursor.setPosition(table->cellAt(cells.row, cells.column).firstPosition());
    const QPointer<QTextEdit> here(text_edit);
    const QPointer<QTextTable> still_there(table);
    text_edit->setTextCursor(cursor); // who hears of it may do anything
    if (!here || !still_there || text_edit->isReadOnly() || !has_cells(table, cells))
        return;
    cursor.beginEditBlock();
    change(table, cells);
    cursor.endEditBlock();
    if (here)
        text_edit->ensureCursorVisible();
}

void insert_rows(QTextTable *table, int row, int model)
{
    const bool above = row <= model;
    table->insertRows(row, 1);
    for (int column = 0; column < table->columns(); ++column) {
        const QTextTableCell cell = table->cellAt(row, column);
        if (cell.row() == row && cell.column() == column)
            dress_like(cell, table->cellAt(above ? model + 1 : model, column));
    }
}

void insert_columns(QTextTable *table, int column, int model)
{
    const bool before = column <= model;
    table->insertColumns(column, 1);
    for (int row = 0; row < table->rows(); ++row) {
        const QTextTableCell cell = table->cellAt(row, column);
        if (cell.row() == row && cell.column() == column)
            dress_like(cell, table->cellAt(row, before ? model + 1 : model));
    }
}

bool move_to_next_cell(QTextEdit *text_edit)
{
    const QTextCursor cursor = text_edit->textCursor();
    QTextTable *table = cursor.currentTable();
    if (!table)
        return false;
    const QTextTableCell cell = table->cellAt(cursor);
    const int after = cell.row() * table->columns() + cell.column() + cell.columnSpan();
    if (enter(text_edit, cell_from(table, after, 1)))
        return true;
    const int last = table->rows() - 1;
    const QPointer<QTextEdit> here(text_edit);
    const QPointer<QTextTable> still_there(table);
    change_table(text_edit, [last](QTextTable *changed, const CellRange &) { insert_rows(changed, last + 1, last); });
    if (!here || !still_there)
        return true;
    return enter(text_edit, cell_from(table, (last + 1) * table->columns(), 1));
}

bool move_to_previous_cell(QTextEdit *text_edit)
{
    const QTextCursor cursor = text_edit->textCursor();
    const QTextTable *table = cursor.currentTable();
    if (!table)
        return false;
    const QTextTableCell cell = table->cellAt(cursor);
    return enter(text_edit, cell_from(table, cell.row() * table->columns() + cell.column() - 1, -1));
}

} // namespace my_classes
