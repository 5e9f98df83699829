// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/size_form.h"
#include "frame/retranslation.h"

#include <my_classes/image_size_input_dialog.h>

#include <QtWidgets/QLineEdit>

namespace my_classes {

ImageSizeInputDialog::ImageSizeInputDialog(int w, int h, QWidget *parent)
    : QDialog(parent)
{
    const SizeForm form(this);
    new Retranslation(this, [this, form] {
        setWindowTitle(tr("Image Size"));
        form.set_texts(tr("Image Width:"), tr("Image Height:"));
    });
    input1 = form.first;
    input2 = form.second;
    ok_button = form.ok;
    cancel_button = form.cancel;
    input1->setText(QString::number(w));
    input2->setText(QString::number(h));
}

std::pair<QString, QString> ImageSizeInputDialog::get_inputs() const
{
    return {input1->text(), input2->text()};
}

} // namespace my_classes
