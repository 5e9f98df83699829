// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/edit_state.h"
#include "editor/loaded_sizes.h"
#include "layout/document_copy.h"

#include <my_classes/custom_text_editor.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QApplication>

namespace my_classes {

QString CustomTextEditor::get_html_content() const
{
    // The exporter leaves out sizes equal to the default font's, so zoom cannot be patched away afterwards.
    if (unzoomed_font() == text_edit->document()->defaultFont())
        return text_edit->toHtml();
    return DocumentCopy(text_edit->document(), unzoomed_font()).toHtml();
}

QString CustomTextEditor::get_text_content() const
{
    return text_edit->toPlainText();
}

void CustomTextEditor::set_html_content(const QString &content)
{
    load(content, &QTextEdit::setHtml);
}

void CustomTextEditor::set_text_content(const QString &content)
{
    load(content, &QTextEdit::setText);
}

void CustomTextEditor::load(const QString &content, void (QTextEdit::*as)(const QString &))
{
    // A document saved here names its size at the top, and Qt makes that a format of all the text, which no zoom
    // changes. Taken away before the text area tells of the text, that goes for one change.
    QTextDocument *document = text_edit->document();
    const QFont font = unzoomed_font();
    if (const QString sizeless = without_size_of(font, content); !sizeless.isEmpty()) {
        (text_edit->*as)(sizeless);
        return;
    }
    const QObject meanwhile;
    connect(document, &QTextDocument::contentsChanged, &meanwhile, [is_done = false, document, font]() mutable {
        if (is_done || document->isEmpty()) // cleared first
            return;
        is_done = true;
        forget_size_of(font, document);
    });
    (text_edit->*as)(content);
}

QString CustomTextEditor::get_selected_text() const
{
    return text_edit->textCursor().selectedText();
}

void CustomTextEditor::insert_after_selection(const QString &text)
{
    QTextCursor cursor = text_edit->textCursor();
    if (!cursor.hasSelection() || is_read_only())
        return;
    cursor.beginEditBlock();
    cursor.setPosition(cursor.selectionEnd());
    cursor.insertText(QStringLiteral("\r\n"));
    cursor.insertHtml(text);
    const QPointer<QTextEdit> here(text_edit);
    cursor.endEditBlock();
    if (here) // who hears of it may delete it
        here->setTextCursor(cursor);
}

void CustomTextEditor::replace_selected_text(const QString &text)
{
    QTextCursor cursor = text_edit->textCursor();
    if (!cursor.hasSelection() || is_read_only())
        return;
    if (text.isEmpty()) // QTextCursor::insertHtml() would leave the selection alone
        return cursor.removeSelectedText();
    cursor.beginEditBlock(); // as in insert_html()
    cursor.insertHtml(text);
    cursor.endEditBlock();
}

void CustomTextEditor::paste_plain_text()
{
    if (is_read_only())
        return;
    const QMimeData *content = QApplication::clipboard()->mimeData();
    QString text = QApplication::clipboard()->text();
    if (text.isEmpty() && content && content->hasHtml()) // some programs offer nothing else
        text = QTextDocumentFragment::fromHtml(content->html()).toPlainText();
    if (text.isEmpty())
        return;
    QTextCursor cursor = text_edit->textCursor();
    const QPointer<QTextEdit> here(text_edit);
    cursor.beginEditBlock(); // else a step with what was typed before
    cursor.insertText(text + u' ');
    cursor.deletePreviousChar(); // what is typed behind it is not joined to a step that ends so
    cursor.endEditBlock();
    if (here)
        here->ensureCursorVisible();
}

bool CustomTextEditor::is_modified() const
{
    return m_edit_state->is_modified();
}

void CustomTextEditor::set_modified(bool modified)
{
    m_edit_state->set_modified(modified);
}

} // namespace my_classes
