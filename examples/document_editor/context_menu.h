// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

namespace my_classes {
class CustomTextEditor;
}

namespace document_editor {

/// From now on the context menu of the editor's text begins with the suggestions for a misspelled word.
void offer_suggestions(my_classes::CustomTextEditor *editor);

} // namespace document_editor
