// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/edit_state.h"
#include "editor/word_under_cursor.h"
#include "frame/diagnostics.h"
#include "frame/quiet.h"
#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtWidgets/QComboBox>

#include <algorithm>
#include <stdexcept>

namespace my_classes {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(log_spelling, "my_classes.spelling")

namespace {

/// False if a listener has deleted the editor.
bool enable_word_actions(CustomTextEditor *editor, bool correct, bool add)
{
    const QPointer<CustomTextEditor> here(editor);
    editor->correctAction->setEnabled(correct);
    if (here)
        editor->addWordAction->setEnabled(add);
    return here;
}

/// Sorted, with `suggestions`' first one chosen. False if a listener has deleted the box.
bool fill(QComboBox *box, const QStringList &suggestions)
{
    const QPointer<QComboBox> here(box);
    QStringList sorted = suggestions;
    std::sort(sorted.begin(), sorted.end());
    if (box->count() > 0)
        box->clear();
    if (here && !sorted.isEmpty())
        box->addItems(sorted);
    if (here && !sorted.isEmpty())
        box->setCurrentText(suggestions.first());
    return here;
}

} // namespace

void CustomTextEditor::check_spelling()
{
    if (!spellchecker)
        return;
    QSet<QString> misspelled;
    {
        const Quiet quiet(text_edit); // underlining is not an edit
        if (!enable_word_actions(this, false, false))
            return;
        try {
            misspelled = spellchecker->check(text_edit->toPlainText());
        } catch (const std::runtime_error &error) {
            qCWarning(log_spelling, "%s", error.what());
            return;
        }
        misspelled.removeIf([this](const QString &word) { return is_ignored(word); });
        highlighter->setMisspelled(misspelled);
        trace(u"Misspelled words: %1"_s.arg(misspelled.size()), quoted_list(misspelled.values()));
    }
    Q_EMIT check_spelling_done(misspelled); // listeners may move the cursor: signals are back on
}

void CustomTextEditor::show_first_misspelled(const QSet<QString> &misspelled)
{
    trace("Going to first misspelled...");
    const QPointer<CustomTextEditor> here(this);
    const bool had_selection = text_edit->textCursor().hasSelection();
    QTextCursor cursor = text_edit->textCursor();
    cursor.movePosition(QTextCursor::Start);
    const bool examined = !cursor.atEnd();
    if (misspelled.isEmpty()) // where the walk would end; a long document takes seconds
        cursor.movePosition(QTextCursor::End);
    while (!cursor.atEnd()) {
        cursor = word_under_cursor(cursor);
        if (misspelled.contains(cursor.selectedText()))
            break;
        if (!cursor.movePosition(QTextCursor::NextWord))
            break;
    }
    if (!examined)
        return;
    // Also when no word was found: the last word of the document is shown then.
    cursor.movePosition(QTextCursor::StartOfWord);
    {
        const Quiet quiet(text_edit);
        text_edit->setTextCursor(cursor);
        text_edit->ensureCursorVisible();
        if (here)
            text_edit->setFocus();
        // Their word is no longer the one under the cursor.
        if (!here || !enable_word_actions(this, false, false))
            return;
    }
    update_format_buttons();
    if (here)
        update_font_combos();
    if (here)
        update_table_commands();
    if (here && had_selection)
        selection_changed();
}

void CustomTextEditor::update_from_cursor()
{
    const QPointer<CustomTextEditor> here(this);
    update_format_buttons();
    if (here)
        update_font_combos();
    if (here)
        update_suggestions();
}

void CustomTextEditor::update_suggestions()
{
    // In lower case: a word reported with capitals is never offered suggestions.
    const QString word = word_under_cursor(text_edit->textCursor()).selectedText().trimmed().toLower();
    if (!enable_word_actions(this, false, false) || !fill(suggestionsComboBox, {}))
        return;
    if (!spellchecker || !highlighter->misspelled.contains(word) || (m_marker && m_marker->is_typing()))
        return;

    trace(u"Misspelled word: "_s + word);
    QStringList suggestions;
    try {
        suggestions = spellchecker->get_suggestions(word);
    } catch (const std::runtime_error &error) {
        qCWarning(log_spelling, "%s", error.what());
        return;
    }
    trace(u"Suggestions: "_s + quoted_list(suggestions));
    if (fill(suggestionsComboBox, suggestions))
        enable_word_actions(this, !suggestions.isEmpty() && !text_edit->isReadOnly(), suggestions.isEmpty());
}

void CustomTextEditor::correct_word()
{
    trace("Correcting misspelled word...");
    const QString suggestion = suggestionsComboBox->currentText();
    if (suggestion.isEmpty())
        return;
    const QTextCursor word = word_under_cursor(text_edit->textCursor());
    if (word.hasSelection())
        replace_word(word, suggestion);
    else if (!text_edit->isReadOnly())
        QTextCursor(word).insertText(suggestion);
}

void CustomTextEditor::add_word_to_dictionary()
{
    if (!spellchecker)
        return;
    // As it stands, neither stripped nor in lower case.
    const QString word = word_under_cursor(text_edit->textCursor()).selectedText();
    try {
        spellchecker->spell.word_frequency.add(word);
    } catch (const std::runtime_error &error) {
        qCWarning(log_spelling, "%s", error.what());
        return;
    }
    const QPointer<CustomTextEditor> still_here(this);
    Q_EMIT word_added_to_dictionary(word);
    if (still_here)
        check_spelling();
}

/// Limpia el resaltado de todas las palabras en el documento.
void CustomTextEditor::clear_highlights()
{
    QTextCursor cursor = text_edit->textCursor();
    cursor.setPosition(0);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setBackground(Qt::transparent);
    search_results.clear();
    current_search_index = -1;
    if (is_read_only())
        return;
    const Marking no_edit;
    cursor.mergeCharFormat(format); // last: who hears of it may delete the editor
}

} // namespace my_classes
