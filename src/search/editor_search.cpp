// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_text_editor.h>

namespace my_classes {

void CustomTextEditor::search_text()
{
    delete search_dialog;
    search_dialog = new SearchDialog(text_edit);
    search_dialog->show();
}

} // namespace my_classes
