// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/size_form.h"
#include "frame/retranslation.h"

#include <my_classes/table_dimension_input_dialog.h>

#include <QtWidgets/QLineEdit>

namespace my_classes {

TableDimensionInputDialog::TableDimensionInputDialog(QWidget *parent)
    : QDialog(parent)
{
    const SizeForm form(this);
    new Retranslation(this, [this, form] {
        setWindowTitle(tr("Table Dimensión"));
        form.set_texts(tr("Table Rows:"), tr("Table Columns:"));
    });
    input1 = form.first;
    input2 = form.second;
    ok_button = form.ok;
    cancel_button = form.cancel;
}

std::pair<QString, QString> TableDimensionInputDialog::get_inputs() const
{
    return {input1->text(), input2->text()};
}

} // namespace my_classes
