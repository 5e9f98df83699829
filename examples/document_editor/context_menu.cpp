// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "context_menu.h"

#include <my_classes/custom_text_editor.h>

#include <QtWidgets/QMenu>

namespace document_editor {

using my_classes::CustomTextEditor;

namespace {

constexpr int k_most_suggestions = 7;

void add_suggestions(QMenu *menu, CustomTextEditor *editor, const QTextCursor &word)
{
    QAction *before = menu->actions().value(0);
    const auto add = [menu, before](const QString &text) {
        auto *action = new QAction(text, menu);
        menu->insertAction(before, action);
        return action;
    };
    const QString misspelled = word.selectedText();
    const QStringList suggestions = editor->suggestions_for(misspelled).mid(0, k_most_suggestions);
    for (const QString &suggestion : suggestions) {
        QAction *action = add(suggestion);
        QFont bold = action->font();
        bold.setBold(true);
        action->setFont(bold);
        QObject::connect(action, &QAction::triggered, editor, [=] { editor->replace_word(word, suggestion); });
    }
    if (suggestions.isEmpty())
        add(QObject::tr("No suggestions"))->setEnabled(false);
    menu->insertSeparator(before);
    QObject::connect(add(QObject::tr("&Add to Dictionary")), &QAction::triggered, editor,
                     [=] { editor->add_to_dictionary(misspelled); });
    QObject::connect(add(QObject::tr("&Ignore in This Section")), &QAction::triggered, editor,
                     [=] { editor->ignore_word(misspelled); });
    menu->insertSeparator(before);
}

} // namespace

void offer_suggestions(CustomTextEditor *editor)
{
    QTextEdit *text = editor->text_edit;
    text->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(text, &QWidget::customContextMenuRequested, editor, [editor, text](const QPoint &point) {
        QMenu *menu = text->createStandardContextMenu(point);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        const QTextCursor word = editor->word_at_point(point);
        if (!editor->is_read_only() && word.hasSelection() && editor->is_misspelled(word.selectedText()))
            add_suggestions(menu, editor, word);
        const QRect caret = text->cursorRect(); // where the key asks for the menu
        menu->popup(text->viewport()->mapToGlobal(caret.contains(point) ? caret.bottomLeft() : point));
    });
}

} // namespace document_editor
