// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>

namespace my_spellchecker {

class Dictionary;

/// The text that was checked last and what was misspelled in it, so that checking it again costs what has changed.
class CheckedText
{
public:
    /// The distinct misspelled words of `text`. Throws as Dictionary does, and then knows no text.
    QSet<QString> misspelled_words(const QString &text, Dictionary &dictionary);

private:
    void count(QStringView paragraphs, int step, Dictionary &dictionary);

    QString m_text;
    QHash<QString, int> m_occurrences; // of the misspelled words
    int m_generation = -1;             // of the dictionary's answers
};

} // namespace my_spellchecker
