// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/edit_state.h"
#include "frame/diagnostics.h"
#include "search/readable_marks.h"

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

/// Start positions of all occurrences, which become yellow and the rest of the document without background. That is one
/// change of the document, because each costs a layout of what follows.
QList<int> find_and_mark(QTextDocument *document, const QString &wanted)
{
    QTextCursor marker(document);
    const int end = document->characterCount() - 1;
    // What lies between two matches is not one range where there are tables. Elsewhere nothing is changed twice.
    const bool has_frames = !document->rootFrame()->childFrames().isEmpty();
    marker.beginEditBlock(); // searching outside would lay the text out on its way
    if (has_frames)
        set_background(marker, 0, end, Qt::transparent);

    QList<int> found;
    int done = 0;
    for (QTextCursor cursor(document); !cursor.isNull() && !cursor.atEnd();) {
        cursor = document->find(wanted, cursor);
        if (cursor.isNull())
            break;
        const int start = cursor.position() - int(wanted.size());
        found.append(start);
        cursor.mergeCharFormat(background(Qt::yellow));
        if (!has_frames)
            set_background(marker, done, start, Qt::transparent);
        done = cursor.position();
    }
    if (!has_frames)
        set_background(marker, done, end, Qt::transparent);
    else // redoing two changes of one place Qt would want the caret behind the second
        marker.mergeBlockFormat({});
    marker.endEditBlock();
    return found;
}

QList<int> find_only(const QTextDocument *document, const QString &wanted)
{
    QList<int> found;
    QTextCursor cursor = document->find(wanted);
    for (; !cursor.isNull(); cursor = document->find(wanted, cursor))
        found.append(cursor.position() - int(wanted.size()));
    return found;
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
    const QList<int> found = [&] {
        if (editor->isReadOnly())
            return find_only(editor->document(), wanted);
        const Marking no_edit;
        return find_and_mark(editor->document(), wanted);
    }();
    if (!here || !editor)
        return;
    ReadableMarks::install(editor);
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
    if (editor->isReadOnly())
        return;
    const Marking no_edit;
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
