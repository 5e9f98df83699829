// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_text_editor.h>

namespace my_classes {

void CustomTextEditor::insert_list(QTextListFormat::Style) {}
void CustomTextEditor::insert_numbered_list() {}
void CustomTextEditor::insert_bullet_list_disc() {}
void CustomTextEditor::insert_bullet_list_square() {}

} // namespace my_classes
