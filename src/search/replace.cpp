// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/document_text.h"
#include "search/replace_run.h"

#include <my_classes/search_dialog.h>

#include <QtCore/QStringMatcher>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace my_classes {

void SearchDialog::replace()
{
    if (!editor || editor->isReadOnly())
        return;
    QTextCursor cursor = text_cursor();
    if (!cursor.hasSelection())
        return;
    const QPointer<SearchDialog> here(this);
    const QString replacement = replace_input->text();
    const int start = cursor.selectionStart();
    const int removed = cursor.selectionEnd() - start;
    cursor.insertText(replacement);
    if (!here)
        return;
    if (m_run)
        m_run->replaced(start, removed, cursor.position() - start, replacement);
    restart_search();
}

void SearchDialog::replace_all()
{
    const QString wanted = search_input->text();
    if (!editor || editor->isReadOnly() || wanted.isEmpty())
        return;
    const QPointer<SearchDialog> here(this);
    const QStringMatcher matcher(wanted);
    int count = 0;
    {
        ReplaceRun run(this);
        qsizetype position = 0;
        while (run.goes_on(count)) {
            const qsizetype found = run.find(matcher, std::min(position, m_text->size()));
            if (found < 0)
                break;
            QTextCursor cursor = text_cursor();
            cursor.setPosition(int(found));
            cursor.setPosition(int(found + wanted.size()), QTextCursor::KeepAnchor);
            set_text_cursor(cursor);
            position += wanted.size(); // not to behind the match: known, and kept
            replace();
            if (!here)
                return;
            ++count;
        }
    }
    if (!here || !editor)
        return;
    inform(tr("Replace All"), tr("Total %1 matches replaced!").arg(count));
    if (here)
        matches.reset();
}

void SearchDialog::clear_selection()
{
    if (!editor)
        return;
    QTextCursor cursor = editor->textCursor();
    cursor.clearSelection();
    editor->setTextCursor(cursor);
}

} // namespace my_classes
