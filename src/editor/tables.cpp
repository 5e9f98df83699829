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
    TableDimensionInputDialog dialog;
    if (!accepted_over(this, &dialog))
        return;

    const auto inputs = dialog.get_inputs();
    const std::optional<int> rows = entered_number(inputs.first);
    const std::optional<int> columns = entered_number(inputs.second);
    // A row without columns has to be read, too.
    if (!rows || !columns || qint64(*rows) * qMax(*columns, 1) > k_most_cells)
        return;

    const WaitCursor wait;
    text_edit->textCursor().insertHtml(table_html(*rows, *columns));
    text_edit->ensureCursorVisible();
}

} // namespace my_classes
