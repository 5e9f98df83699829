// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_text_editor.h>

namespace my_classes {

void CustomTextEditor::search_text() {}

} // namespace my_classes
