// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "format_commands.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QTextBlock>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>

namespace document_editor {

using my_classes::CustomTextEditor;

namespace {

constexpr int k_largest_adjustment = 4; // Qt's steps of font sizes: heading 1 is 3, text 0

/// The paragraphs of the selection, as a whole.
QTextCursor paragraphs(const CustomTextEditor *editor)
{
    const QTextCursor at = editor->text_edit->textCursor();
    QTextCursor cursor = at;
    cursor.setPosition(at.selectionStart());
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.setPosition(at.selectionEnd(), QTextCursor::KeepAnchor);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    return cursor;
}

QTextCharFormat heading_letters(int level)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontSizeAdjustment, level == 0 ? 0 : k_largest_adjustment - level);
    format.setFontWeight(level == 0 ? QFont::Normal : QFont::Bold);
    return format;
}

} // namespace

void set_heading(CustomTextEditor *editor, int level)
{
    if (editor->is_read_only())
        return;
    QTextCursor cursor = paragraphs(editor);
    QTextBlockFormat paragraph;
    paragraph.setHeadingLevel(level);
    cursor.beginEditBlock();
    cursor.mergeBlockFormat(paragraph);
    cursor.mergeCharFormat(heading_letters(level));
    cursor.mergeBlockCharFormat(heading_letters(level));
    cursor.endEditBlock();
    if (!editor->text_edit->textCursor().hasSelection()) // an empty paragraph keeps it for what is typed
        editor->text_edit->mergeCurrentCharFormat(heading_letters(level));
}

int heading_level(const CustomTextEditor *editor)
{
    return editor->text_edit->textCursor().blockFormat().headingLevel();
}

void set_line_spacing(CustomTextEditor *editor, double factor)
{
    if (editor->is_read_only())
        return;
    QTextBlockFormat format;
    format.setLineHeight(factor * 100, QTextBlockFormat::ProportionalHeight);
    paragraphs(editor).mergeBlockFormat(format);
}

void choose_colour(CustomTextEditor *editor, const QString &title, QBrush (QTextFormat::*present)() const,
                   void (QTextFormat::*set)(const QBrush &))
{
    const QPointer<CustomTextEditor> still_here(editor);
    const QTextCharFormat before = editor->text_edit->currentCharFormat();
    const QColor colour = QColorDialog::getColor((before.*present)().color(), editor, title);
    if (!colour.isValid() || !still_here || editor->is_read_only())
        return;
    QTextCharFormat format;
    (format.*set)(colour);
    editor->merge_format_on_selection(format);
}

void reset_zoom(CustomTextEditor *editor)
{
    for (int steps = (editor->zoom_percent - 100) / 10; steps > 0; --steps)
        editor->zoom_out();
    for (int steps = (100 - editor->zoom_percent) / 10; steps > 0; --steps)
        editor->zoom_in();
}

void connect_font_boxes(CustomTextEditor *editor)
{
    editor->font_combo->setEnabled(true);
    editor->font_size_combo->setEnabled(true);
    QObject::connect(editor->font_combo, &QComboBox::textActivated, editor, &CustomTextEditor::set_font_family);
    QObject::connect(editor->font_size_combo, &QComboBox::textActivated, editor,
                     [editor](const QString &size) { editor->set_font_size(size); });
}

} // namespace document_editor
