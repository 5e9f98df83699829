// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/checked_text.h"
#include "spelling/dictionary.h"
#include "spelling/word_tokenizer.h"

#include <my_classes/my_spellchecker.h>

#include <utility>

namespace my_spellchecker {

WordFrequency::WordFrequency(std::shared_ptr<Dictionary> dictionary)
    : m_dictionary(std::move(dictionary))
{
}

void WordFrequency::add(const QString &word)
{
    m_dictionary->add(word);
}

MySpellChecker::MySpellChecker(const QString &lang)
    : m_dictionary(Dictionary::for_language(lang))
    , m_checked_text(std::make_unique<CheckedText>())
    , spell{WordFrequency(m_dictionary)}
{
}

MySpellChecker::~MySpellChecker() = default;

QSet<QString> MySpellChecker::check(const QString &text)
{
    return m_checked_text->misspelled_words(text, *m_dictionary);
}

bool MySpellChecker::is_misspelled(const QString &word)
{
    m_dictionary->refresh();
    return !word.isEmpty() && WordTokenizer(word).next() == word && m_dictionary->is_misspelled(word);
}

QStringList MySpellChecker::get_suggestions(const QString &word)
{
    return m_dictionary->suggestions(word);
}

} // namespace my_spellchecker
