// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QTextCursor;
class QTextEdit;
class QTextTable;
QT_END_NAMESPACE

namespace my_classes {

struct CellRange
{
    int row;
    int column;
    int rows;
    int columns;
};

/// Gives `change` the table at the caret and the cells there, or the selected ones, and makes what it does one undo
/// step. Does nothing outside a table or in a read-only text.
void change_table(QTextEdit *text_edit, const std::function<void(QTextTable *, const CellRange &)> &change);

/// Inserts one row before `row`, whose cells look like those of the row `model`.
void insert_rows(QTextTable *table, int row, int model);
void insert_columns(QTextTable *table, int column, int model);

/// Moves the caret to the next cell, from the last one into a new row, or to the previous one. False, with nothing
/// done, if there is no table at the caret, or no cell before.
bool move_to_next_cell(QTextEdit *text_edit);
bool move_to_previous_cell(QTextEdit *text_edit);

} // namespace my_classes
