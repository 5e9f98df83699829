// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtWidgets/QComboBox>

namespace my_classes {

void CustomTextEditor::set_lang(const QString &language)
{
    const bool has_checker = spellchecker != nullptr; // a host may have taken it
    if (language == lang && language == m_checker_lang && has_checker == !language.isEmpty())
        return;
    start_spelling(language); // may throw; nothing has changed then
    lang = language;
    {
        const QSignalBlocker quiet(text_edit); // underlining is not an edit
        highlighter->setMisspelled({});
    }
    if (m_marker)
        m_marker->start_again();
    const QPointer<CustomTextEditor> here(this);
    enable_spelling();
    if (here)
        update_suggestions();
    if (here)
        count_words();
    if (here)
        Q_EMIT lang_changed(language);
}

void CustomTextEditor::start_spelling(const QString &language)
{
    auto checker = language.isEmpty() ? nullptr : std::make_unique<my_spellchecker::MySpellChecker>(language);
    spellchecker = std::move(checker);
    m_checker_lang = language;
}

/// Shows whether there is anything to check with.
void CustomTextEditor::enable_spelling()
{
    const bool can_check = spellchecker != nullptr;
    if (can_check == suggestionsComboBox->isEnabled()) // a host's own disabling stays while a language follows another
        return;
    suggestionsComboBox->setEnabled(can_check);
    checkAction->setEnabled(can_check); // last: a listener may delete the editor
}

} // namespace my_classes
