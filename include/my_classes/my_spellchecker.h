// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace my_classes {
class WordMarker;
}

namespace my_spellchecker {

class CheckedText;
class Dictionary;

/// Adds words to the personal word list of a language.
class MY_CLASSES_EXPORT WordFrequency
{
public:
    /// Of `dictionary`, which it shares; MySpellChecker makes one for itself.
    explicit WordFrequency(std::shared_ptr<Dictionary> dictionary);

    /// Adds `word`, stripped of surrounding white space, to the person's word list of the language. It holds at once
    /// for every checker of that language in the process and is on disk when this returns; where the list cannot be
    /// written it holds until the process ends. Text that is no word adds nothing: none but white space, more than
    /// 200 code units, control characters, half a surrogate pair. Throws as MySpellChecker::check() does.
    void add(const QString &word);

private:
    std::shared_ptr<Dictionary> m_dictionary;
};

/// Checks the spelling of one language with the dictionaries installed on the system.
///
/// All checkers of a language in a process share one loaded dictionary and its remembered answers; it is loaded at
/// the first check. GUI thread only.
class MY_CLASSES_EXPORT MySpellChecker
{
public:
    /// What belongs to the dictionary in use.
    struct Spell
    {
        /// Adds words to it.
        WordFrequency word_frequency;
    };

    /// `lang` is a language ("en") or a language and region ("en_GB", "en-GB"). A language alone takes the region of
    /// the system's locale, else the language's usual region, else any. Throws std::runtime_error naming `lang` and
    /// the languages that are there if no dictionary serves.
    explicit MySpellChecker(const QString &lang);
    ~MySpellChecker();

    MySpellChecker(const MySpellChecker &) = delete;
    MySpellChecker &operator=(const MySpellChecker &) = delete;

    /// The distinct misspelled words of `text`, as written there. A word is a run of letters and marks with inner
    /// apostrophes; single letters, words with digits, addresses and file paths are never reported. Throws
    /// std::runtime_error if the dictionary has disappeared since construction. The text is remembered: checking it
    /// again after an edit costs the edited paragraphs.
    QSet<QString> check(const QString &text);

    /// Whether `word`, alone, is one that check() would report. Throws as check() does.
    bool is_misspelled(const QString &word);

    /// The languages with a dictionary on this system ("en_GB"), sorted. Empty where there is none.
    static QStringList installed_languages();
    /// Whether a checker of `lang` can be made.
    static bool is_available(const QString &lang);
    /// The name of a language in itself, with its region ("Español (España)"); `lang` where Qt knows none.
    static QString language_name(const QString &lang);

    /// Replacements for `word`, best first; empty if there are none. Throws as check() does.
    QStringList get_suggestions(const QString &word);

private:
    friend class my_classes::WordMarker;

    std::shared_ptr<Dictionary> m_dictionary;
    std::unique_ptr<CheckedText> m_checked_text;

public:
    /// `spell.word_frequency.add(word)` adds a word to the dictionary in use.
    Spell spell;
};

} // namespace my_spellchecker
