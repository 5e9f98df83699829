// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/html_fragments.h"
#include "editor/size_form.h"
#include "editor/wait_cursor.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/table_dimension_input_dialog.h>

#include <QtGui/QTextCursor>

namespace my_classes {

namespace {

// Building so many takes about half a minute, and more than in proportion beyond.
constexpr qint64 k_most_cells = 100'000;

} // namespace

void CustomTextEditor::insert_table()
{
    if (text_edit->isReadOnly())
        return;
    TableDimensionInputDialog dialog;
    if (!accepted_over(this, &dialog))
        return;
    const auto inputs = dialog.get_inputs();
    const std::optional<int> rows = entered_number(inputs.first);
    const std::optional<int> columns = entered_number(inputs.second);
    if (rows && columns)
        insert_table_of_size(*rows, *columns);
}

bool CustomTextEditor::insert_table_of_size(int rows, int columns)
{
    // A row without columns has to be read, too, and the columns of no row have to be written.
    const qint64 cells = qint64(qMax(rows, 1)) * qMax(columns, 1);
    if (rows < 0 || columns < 0 || cells > k_most_cells || text_edit->isReadOnly())
        return false;
    const WaitCursor wait;
    insert_html(text_edit, {table_html(rows, columns)});
    return true;
}

} // namespace my_classes
