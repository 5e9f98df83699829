// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/image_size_input_dialog.h>

namespace my_classes {

ImageSizeInputDialog::ImageSizeInputDialog(int, int) {}
std::pair<QString, QString> ImageSizeInputDialog::get_inputs() const
{
    return {};
}

} // namespace my_classes
