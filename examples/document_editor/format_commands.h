// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace my_classes {
class CustomTextEditor;
}

namespace document_editor {

// What the editor's tool bar has not. Each change is one undo step.

/// The paragraphs of the selection become headings of `level` 1 to 6, or text for 0.
void set_heading(my_classes::CustomTextEditor *editor, int level);
int heading_level(const my_classes::CustomTextEditor *editor);
/// Of the paragraphs of the selection; 1 is single.
void set_line_spacing(my_classes::CustomTextEditor *editor, double factor);
/// These ask for a colour.
void choose_text_colour(my_classes::CustomTextEditor *editor);
void choose_background_colour(my_classes::CustomTextEditor *editor);
void reset_zoom(my_classes::CustomTextEditor *editor);
/// The tool bar's boxes show the font; from now on they set it, too.
void connect_font_boxes(my_classes::CustomTextEditor *editor);

} // namespace document_editor
