// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/diagnostics.h"

#include <my_classes/search_dialog.h>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace my_classes {

namespace {

void set_background(QTextCursor selection, const QColor &colour)
{
    QTextCharFormat format;
    format.setBackground(colour);
    selection.mergeCharFormat(format);
}

QString number_list(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return u'[' + texts.join(u", "_s) + u']';
}

} // namespace

void SearchDialog::find_all_matches()
{
    const QString wanted = search_input->text();
    if (!editor || wanted.isEmpty())
        return;
    const QPointer<SearchDialog> here(this);
    QTextDocument *document = editor->document();
    QList<int> found;
    QTextCursor block(document); // one change of the document: each costs a layout of what lies behind it
    block.beginEditBlock();
    clear_highlight();
    for (QTextCursor cursor(document); !cursor.isNull() && !cursor.atEnd();) {
        cursor = document->find(wanted, cursor);
        if (cursor.isNull())
            break;
        found.append(cursor.position() - int(wanted.size()));
        cursor.mergeCharFormat(highlight_format());
    }
    search_results = found;
    block.endEditBlock();
    if (!here || !editor)
        return;

    trace(number_list(search_results));
    if (search_results.isEmpty())
        return inform(tr("Search"), tr("No matches found."));
    // From -1, so to one before the first match: known, and kept.
    current_search_index += search_results.constFirst();
    navigate_to_match(current_search_index);
}

void SearchDialog::clear_highlight()
{
    if (!editor)
        return;
    search_results.clear();
    current_search_index = -1;
    QTextCursor cursor = editor->textCursor();
    cursor.setPosition(0);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    set_background(cursor, Qt::transparent);
}

void SearchDialog::highlight_match() {}

QTextCharFormat SearchDialog::highlight_format() const
{
    QTextCharFormat format;
    format.setBackground(Qt::yellow);
    return format;
}

void SearchDialog::navigate_to_match(int position)
{
    if (!editor)
        return;
    trace(u"Navigate to position"_s, position);
    if (position < 0)
        return;
    const QPointer<QTextEdit> text_area = editor;
    QTextCursor cursor = editor->textCursor();
    cursor.setPosition(std::min(position, editor->document()->characterCount() - 1));
    editor->setTextCursor(cursor);
    if (text_area)
        text_area->setFocus();
}

void SearchDialog::next_match()
{
    if (!editor)
        return;
    trace(u"Next match"_s, current_search_index);
    if (!search_results.isEmpty())
        navigate_to_match(current_search_index);
}

void SearchDialog::previous_match()
{
    if (!editor)
        return;
    trace(u"Previous match"_s, current_search_index);
    if (search_results.isEmpty())
        return;
    const int count = int(search_results.size());
    current_search_index = ((current_search_index - 1) % count + count) % count;
    navigate_to_match(current_search_index); // an index for a position: known, and kept
}

} // namespace my_classes
