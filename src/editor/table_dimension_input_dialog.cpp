// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/table_dimension_input_dialog.h>

namespace my_classes {

TableDimensionInputDialog::TableDimensionInputDialog() = default;
std::pair<QString, QString> TableDimensionInputDialog::get_inputs() const
{
    return {};
}

} // namespace my_classes
