// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/list_levels.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextList>
#include <QtWidgets/QTextEdit>

namespace my_classes {

namespace {

/// The list of that level which an item at `block` belongs to, if there is one before it or else behind it.
QTextList *list_around(const QTextBlock &block, int level)
{
    const auto towards = [level](QTextBlock other, auto next) -> QTextList * {
        for (; other.isValid() && other.textList(); other = next(other)) {
            const int other_level = other.textList()->format().indent();
            if (other_level <= level)
                return other_level == level ? other.textList() : nullptr;
        }
        return nullptr;
    };
    QTextList *before = towards(block.previous(), [](const QTextBlock &b) { return b.previous(); });
    return before ? before : towards(block.next(), [](const QTextBlock &b) { return b.next(); });
}

} // namespace

bool change_list_level(QTextEdit *text_edit, int steps)
{
    QTextCursor cursor = text_edit->textCursor();
    const QTextList *list = cursor.currentList();
    if (!list || cursor.hasSelection() || !cursor.atBlockStart() || text_edit->isReadOnly())
        return false;
    QTextListFormat format = list->format();
    format.setIndent(format.indent() + steps);
    if (format.indent() < 1)
        return false;
    cursor.beginEditBlock();
    if (QTextList *other = list_around(cursor.block(), format.indent()))
        other->add(cursor.block());
    else
        cursor.createList(format);
    const QPointer<QTextEdit> here(text_edit);
    cursor.endEditBlock();
    if (here)
        here->ensureCursorVisible();
    return true;
}

} // namespace my_classes
