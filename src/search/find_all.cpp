// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/diagnostics.h"

#include <my_classes/search_dialog.h>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>
#include <QtWidgets/QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace my_classes {

namespace {

QTextCharFormat background(const QColor &colour)
{
    QTextCharFormat format;
    format.setBackground(colour);
    return format;
}

void set_background(QTextCursor cursor, int from, int until, const QColor &colour)
{
    cursor.setPosition(from);
    cursor.setPosition(until, QTextCursor::KeepAnchor);
    if (cursor.hasSelection())
        cursor.mergeCharFormat(background(colour));
}

/// Yellow on the matches and nothing on the rest, as one change of the document: each costs a layout of what follows.
void mark(QTextDocument *document, const QList<int> &matches, int length)
{
    QTextCursor cursor(document);
    const int end = document->characterCount() - 1;
    // What lies between two matches is not one range where there are tables. Elsewhere nothing is changed twice: where
    // Qt undoes two changes of one place in one step, it warns of a position out of range.
    const bool has_frames = !document->rootFrame()->childFrames().isEmpty();
    if (has_frames)
        set_background(cursor, 0, end, Qt::transparent);
    cursor.beginEditBlock();
    int done = 0;
    for (const int start : matches) {
        if (!has_frames)
            set_background(cursor, done, start, Qt::transparent);
        done = start + length;
        set_background(cursor, start, done, Qt::yellow);
    }
    if (!has_frames)
        set_background(cursor, done, end, Qt::transparent);
    cursor.endEditBlock();
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
    for (QTextCursor cursor(document); !cursor.isNull() && !cursor.atEnd();) {
        cursor = document->find(wanted, cursor);
        if (!cursor.isNull())
            found.append(cursor.position() - int(wanted.size()));
    }
    mark(document, found, int(wanted.size()));
    if (!here || !editor)
        return;
    search_results = found;
    current_search_index = -1;

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
    set_background(editor->textCursor(), 0, editor->document()->characterCount() - 1, Qt::transparent);
}

void SearchDialog::highlight_match() {}

QTextCharFormat SearchDialog::highlight_format() const
{
    return background(Qt::yellow);
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
