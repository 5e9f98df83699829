// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/diagnostics.h"
#include "search/document_text.h"
#include "search/replace_run.h"
#include "search/whole_words.h"

#include <my_classes/search_dialog.h>

#include <QtGui/QTextDocument>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace my_classes {

void SearchDialog::find_next()
{
    if (!editor)
        return;
    write_line(u"finding next..."_s);
    if (!matches) {
        const QString pattern = search_input->text();
        if (pattern.isEmpty())
            return;
        const std::optional<qsizetype> kept = m_run ? m_run->first_whole_word(pattern) : std::nullopt;
        if (kept && *kept >= 0)
            return select_match(*kept, pattern.size());
        if (!kept)
            matches = find_whole_words(pattern, m_text->text());
        if (!matches)
            return inform(tr("Search"), tr("No matches found!"));
    }
    if (matches->hasNext()) {
        const QRegularExpressionMatch match = matches->next();
        return select_match(match.capturedStart(), match.capturedLength());
    }
    replace_button->setEnabled(false);
    replace_all_button->setEnabled(false);
    const QPointer<SearchDialog> here(this);
    inform(tr("Search"), tr("No more matches found!"));
    if (here)
        matches.reset();
}

void SearchDialog::restart_search()
{
    matches.reset();
    find_next();
}

void SearchDialog::select_match(qsizetype start, qsizetype length)
{
    const bool can_replace = !editor->isReadOnly();
    replace_button->setEnabled(can_replace);
    replace_all_button->setEnabled(can_replace);
    write_line(u"Found next "_s + QString::number(start));
    // The text may have become shorter since the search started.
    const qsizetype end = editor->document()->characterCount() - 1;
    QTextCursor cursor = text_cursor();
    cursor.setPosition(int(std::min(start, end)));
    cursor.setPosition(int(std::min(start + length, end)), QTextCursor::KeepAnchor);
    const QPointer<SearchDialog> here(this);
    set_text_cursor(cursor);
    if (here && !m_run && isVisible())
        go_out_of_the_way();
}

void SearchDialog::write_line(const QString &line)
{
    if (m_run)
        m_run->keep_line(line);
    else
        trace(line);
}

QTextCursor SearchDialog::text_cursor() const
{
    return m_run ? m_run->cursor() : editor->textCursor();
}

void SearchDialog::set_text_cursor(const QTextCursor &cursor)
{
    if (m_run)
        m_run->set_cursor(cursor);
    else
        editor->setTextCursor(cursor);
}

} // namespace my_classes
