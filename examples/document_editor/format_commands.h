// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextFormat>

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
/// Asks for a colour, of the letters or behind them.
void choose_colour(my_classes::CustomTextEditor *editor, const QString &title, QBrush (QTextFormat::*present)() const,
                   void (QTextFormat::*set)(const QBrush &));
void reset_zoom(my_classes::CustomTextEditor *editor);
/// The tool bar's boxes show the font; from now on they set it, too.
void connect_font_boxes(my_classes::CustomTextEditor *editor);

} // namespace document_editor
