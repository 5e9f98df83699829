// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/table_cells.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QAction>
#include <QtGui/QTextTable>

namespace my_classes {

void CustomTextEditor::add_table_commands()
{
    using Editor = CustomTextEditor;
    const auto add = [this](EditorCommand command, const char *name, const char *text, void (Editor::*slot)()) {
        connect(make_action(command, name, text), &QAction::triggered, this, slot);
    };
    add(EditorCommand::InsertRowAbove, "insert_row_above", QT_TR_NOOP("Insert Row Above"), &Editor::insert_row_above);
    add(EditorCommand::InsertRowBelow, "insert_row_below", QT_TR_NOOP("Insert Row Below"), &Editor::insert_row_below);
    add(EditorCommand::InsertColumnBefore, "insert_column_before", QT_TR_NOOP("Insert Column Before"),
        &Editor::insert_column_before);
    add(EditorCommand::InsertColumnAfter, "insert_column_after", QT_TR_NOOP("Insert Column After"),
        &Editor::insert_column_after);
    add(EditorCommand::RemoveRows, "remove_rows", QT_TR_NOOP("Remove Rows"), &Editor::remove_rows);
    add(EditorCommand::RemoveColumns, "remove_columns", QT_TR_NOOP("Remove Columns"), &Editor::remove_columns);
    connect(text_edit, &QTextEdit::cursorPositionChanged, this, &Editor::update_table_commands);
    connect(text_edit, &QTextEdit::textChanged, this, &Editor::update_table_commands);
    connect(this, &Editor::read_only_changed, this, &Editor::update_table_commands);
    update_table_commands();
}

/// They are enabled where they have something to do.
void CustomTextEditor::update_table_commands()
{
    const bool in_table = !text_edit->isReadOnly() && text_edit->textCursor().currentTable();
    for (auto i = static_cast<std::size_t>(EditorCommand::InsertRowAbove); i < m_commands.size(); ++i)
        m_commands[i].action->setEnabled(in_table);
}

void CustomTextEditor::insert_row_above()
{
    change_table(text_edit,
                 [](QTextTable *table, const CellRange &cells) { insert_rows(table, cells.row, cells.row); });
}

void CustomTextEditor::insert_row_below()
{
    change_table(text_edit, [](QTextTable *table, const CellRange &cells) {
        insert_rows(table, cells.row + cells.rows, cells.row + cells.rows - 1);
    });
}

void CustomTextEditor::insert_column_before()
{
    change_table(text_edit,
                 [](QTextTable *table, const CellRange &cells) { insert_columns(table, cells.column, cells.column); });
}

void CustomTextEditor::insert_column_after()
{
    change_table(text_edit, [](QTextTable *table, const CellRange &cells) {
        insert_columns(table, cells.column + cells.columns, cells.column + cells.columns - 1);
    });
}

void CustomTextEditor::remove_rows()
{
    change_table(text_edit,
                 [](QTextTable *table, const CellRange &cells) { table->removeRows(cells.row, cells.rows); });
}

void CustomTextEditor::remove_columns()
{
    change_table(text_edit,
                 [](QTextTable *table, const CellRange &cells) { table->removeColumns(cells.column, cells.columns); });
}

} // namespace my_classes
