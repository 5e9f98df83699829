// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/checked_text.h"

#include "spelling/dictionary.h"
#include "spelling/word_tokenizer.h"

#include <algorithm>
#include <iterator>

namespace my_spellchecker {

namespace {

/// Length of the whole paragraphs that both texts begin with.
qsizetype common_start(QStringView a, QStringView b)
{
    const auto difference = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const QStringView common = a.left(difference.first - a.begin());
    return common.lastIndexOf(u'\n') + 1;
}

/// Length of the whole paragraphs that both texts end with, each with the line feed before it.
qsizetype common_end(QStringView a, QStringView b)
{
    const auto difference = std::mismatch(std::make_reverse_iterator(a.end()), std::make_reverse_iterator(a.begin()),
                                          std::make_reverse_iterator(b.end()), std::make_reverse_iterator(b.begin()));
    const QStringView common = a.sliced(difference.first.base() - a.begin());
    const qsizetype first_break = common.indexOf(u'\n');
    return first_break < 0 ? 0 : common.size() - first_break;
}

} // namespace

QSet<QString> CheckedText::misspelled_words(const QString &text, Dictionary &dictionary)
{
    const int generation = dictionary.refresh();
    if (generation != m_generation) {
        m_text.clear();
        m_occurrences.clear();
        m_generation = generation;
    }
    const QString old_text = std::exchange(m_text, text);
    const qsizetype start = common_start(old_text, text);
    const qsizetype end = common_end(QStringView(old_text).sliced(start), QStringView(text).sliced(start));
    count(QStringView(old_text).sliced(start).chopped(end), -1, dictionary);
    count(QStringView(text).sliced(start).chopped(end), 1, dictionary);
    return {m_occurrences.keyBegin(), m_occurrences.keyEnd()};
}

void CheckedText::count(QStringView paragraphs, int step, Dictionary &dictionary)
{
    WordTokenizer tokenizer(paragraphs);
    for (QStringView word = tokenizer.next(); !word.isEmpty(); word = tokenizer.next()) {
        if (!dictionary.is_misspelled(word))
            continue;
        const QString key = word.toString();
        if ((m_occurrences[key] += step) == 0)
            m_occurrences.remove(key);
    }
}

} // namespace my_spellchecker
