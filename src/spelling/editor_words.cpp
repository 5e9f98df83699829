// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/word_under_cursor.h"
#include "spelling/word_forms.h"
#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtWidgets/QScrollBar>

#include <stdexcept>

namespace my_classes {

Q_DECLARE_LOGGING_CATEGORY(log_spelling)

using my_spellchecker::Capitals;
using my_spellchecker::MySpellChecker;

namespace {

/// What `ask` answers, or `otherwise` with a warning when the dictionary has disappeared.
template<typename Answer, typename Ask>
Answer answer_or(const Answer &otherwise, const Ask &ask)
{
    try {
        return ask();
    } catch (const std::runtime_error &error) {
        qCWarning(log_spelling, "%s", error.what());
        return otherwise;
    }
}

/// Suggestions for `word` as if it were written without capitals, and then with its own. An engine puts names first
/// for a word with a capital, and finds no names for one without.
QStringList suggestions_with_capitals(MySpellChecker *checker, const QString &word, Capitals capitals)
{
    const QString lower = word.toLower();
    QStringList found = checker->get_suggestions(lower);
    if (found.isEmpty() || !my_spellchecker::is_one_slip_from(found.constFirst(), lower))
        found = checker->get_suggestions(word) + found;
    for (QString &suggestion : found)
        suggestion = my_spellchecker::with_capitals(suggestion, capitals);
    found.removeDuplicates();
    return found;
}

} // namespace

QTextCursor CustomTextEditor::word_at(const QTextCursor &cursor) const
{
    return cursor.isNull() ? cursor : word_under_cursor(cursor);
}

QTextCursor CustomTextEditor::word_at_point(const QPoint &point) const
{
    const QTextCursor cursor = text_edit->cursorForPosition(point);
    const QScrollBar *across = text_edit->horizontalScrollBar();
    const int x = text_edit->isRightToLeft() ? across->maximum() - across->value() : across->value();
    const QPointF in_document = point + QPoint(x, text_edit->verticalScrollBar()->value());
    // Beside the text the nearest word is not meant.
    const bool on_text = text_edit->document()->documentLayout()->hitTest(in_document, Qt::ExactHit) >= 0;
    return on_text ? word_under_cursor(cursor) : cursor;
}

bool CustomTextEditor::is_misspelled(const QString &word) const
{
    return spellchecker && !is_ignored(word) && answer_or(false, [&] { return spellchecker->is_misspelled(word); });
}

QStringList CustomTextEditor::suggestions_for(const QString &word) const
{
    if (!spellchecker || word.isEmpty())
        return {};
    return answer_or(QStringList(), [&] {
        const Capitals capitals = my_spellchecker::capitals_of(word);
        return capitals == Capitals::first || capitals == Capitals::all
                   ? suggestions_with_capitals(spellchecker.get(), word, capitals)
                   : spellchecker->get_suggestions(word);
    });
}

void CustomTextEditor::replace_word(const QTextCursor &word, const QString &replacement)
{
    if (text_edit->isReadOnly() || !word.hasSelection() || word.document() != text_edit->document())
        return;
    const int start = word.selectionStart();
    const int length = word.selectionEnd() - start;
    QTextCursor cursor = text_edit->textCursor(); // whose place undoing gives back
    cursor.beginEditBlock();
    cursor.setPosition(start + 1);
    const QTextCharFormat format = cursor.charFormat();
    cursor.setPosition(start);
    // First the new text, then the old one away: what is typed behind it is not joined to a step that ends so.
    cursor.insertText(replacement, format);
    const int end = cursor.position();
    cursor.setPosition(end + length, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
}

void CustomTextEditor::add_to_dictionary(const QString &word)
{
    if (!spellchecker || word.trimmed().isEmpty())
        return;
    const bool added = answer_or(false, [&] {
        spellchecker->spell.word_frequency.add(word);
        return true;
    });
    if (!added)
        return;
    take_underlines_away(word.trimmed());
    Q_EMIT word_added_to_dictionary(word);
}

void CustomTextEditor::ignore_word(const QString &word)
{
    const QString ignored = word.trimmed();
    if (ignored.isEmpty())
        return;
    m_ignored_words.insert(my_spellchecker::comparable(ignored));
    take_underlines_away(ignored);
}

bool CustomTextEditor::is_ignored(const QString &word) const
{
    return !m_ignored_words.isEmpty() && m_ignored_words.contains(my_spellchecker::comparable(word));
}

/// Of those forms of `word` that are listed and no longer misspelled.
void CustomTextEditor::take_underlines_away(const QString &word)
{
    const QString form = my_spellchecker::comparable(word);
    QSet<QString> right;
    for (const QString &one : std::as_const(highlighter->misspelled)) {
        if (my_spellchecker::comparable(one) == form && !is_misspelled(one))
            right.insert(one);
    }
    if (right.isEmpty())
        return;
    if (m_marker) {
        m_marker->leave_out(right);
    } else {
        const QSignalBlocker quiet(text_edit); // underlining is not an edit
        highlighter->setMisspelled(highlighter->misspelled - right);
    }
    update_suggestions();
}

} // namespace my_classes
