// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "context_menu.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QMenu>

#include <memory>

namespace document_editor {

namespace {

constexpr int k_most_suggestions = 7;

} // namespace

ContextMenu::ContextMenu(my_classes::CustomTextEditor *editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->text_edit->installEventFilter(this);             // the key
    editor->text_edit->viewport()->installEventFilter(this); // the mouse
}

bool ContextMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto *asked = static_cast<QContextMenuEvent *>(event);
    QTextEdit *text = m_editor->text_edit;
    const bool by_key = asked->reason() == QContextMenuEvent::Keyboard;
    const QPoint point = by_key ? text->cursorRect().bottomLeft() : text->viewport()->mapFromGlobal(asked->globalPos());
    const QTextCursor word = by_key ? m_editor->word_at(text->textCursor()) : m_editor->word_at_point(point);

    QMenu *menu = text->createStandardContextMenu(point);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!m_editor->is_read_only() && word.hasSelection() && m_editor->is_misspelled(word.selectedText()))
        add_suggestions(menu, word);
    menu->popup(text->viewport()->mapToGlobal(point));
    return true;
}

void ContextMenu::add_suggestions(QMenu *menu, const QTextCursor &word)
{
    QAction *before = menu->actions().value(0);
    const auto add = [menu, before](const QString &text) {
        auto *action = new QAction(text, menu);
        menu->insertAction(before, action);
        return action;
    };
    const QString misspelled = word.selectedText();
    const QStringList suggestions = m_editor->suggestions_for(misspelled).mid(0, k_most_suggestions);
    for (const QString &suggestion : suggestions) {
        QAction *action = add(suggestion);
        QFont bold = action->font();
        bold.setBold(true);
        action->setFont(bold);
        connect(action, &QAction::triggered, m_editor,
                [editor = m_editor, word, suggestion] { editor->replace_word(word, suggestion); });
    }
    if (suggestions.isEmpty())
        add(tr("No suggestions"))->setEnabled(false);
    menu->insertSeparator(before);
    connect(add(tr("&Add to Dictionary")), &QAction::triggered, m_editor,
            [editor = m_editor, misspelled] { editor->add_to_dictionary(misspelled); });
    connect(add(tr("&Ignore in This Section")), &QAction::triggered, m_editor,
            [editor = m_editor, misspelled] { editor->ignore_word(misspelled); });
    menu->insertSeparator(before);
}

} // namespace document_editor
