// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_text_editor.h>

#include <QtGui/QTextCursor>

namespace my_classes {

void CustomTextEditor::insert_numbered_list()
{
    insert_list(QTextListFormat::ListDecimal);
}

void CustomTextEditor::insert_bullet_list_disc()
{
    insert_list(QTextListFormat::ListDisc);
}

void CustomTextEditor::insert_bullet_list_square()
{
    insert_list(QTextListFormat::ListSquare);
}

// Always a new list, also inside a list: these commands never take a list away.
void CustomTextEditor::insert_list(QTextListFormat::Style style)
{
    if (is_read_only())
        return;
    QTextListFormat format;
    format.setStyle(style);

    QTextCursor cursor = text_edit->textCursor();
    cursor.beginEditBlock();
    if (cursor.hasSelection())
        cursor.createList(format);
    else
        cursor.insertList(format);
    const QPointer<QTextEdit> here = text_edit;
    cursor.endEditBlock();
    if (here) // a listener may have deleted it
        here->ensureCursorVisible();
}

} // namespace my_classes
