// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/word_forms.h"

#include "frame/code_points.h"

#include <algorithm>

namespace my_spellchecker {

QString with_straight_apostrophes(QString word)
{
    return word.replace(QChar(0x2019), u'\'');
}

QString comparable(const QString &word)
{
    return with_straight_apostrophes(word).normalized(QString::NormalizationForm_D).toCaseFolded();
}

Capitals capitals_of(const QString &word)
{
    const QString lower = word.toLower();
    if (word == lower)
        return Capitals::none;
    const int first = my_classes::code_point_at(word, 0).length;
    if (word.mid(first) == word.mid(first).toLower())
        return Capitals::first;
    return word == word.toUpper() ? Capitals::all : Capitals::mixed;
}

QString with_capitals(const QString &word, Capitals capitals)
{
    if (word.isEmpty() || capitals == Capitals::none || capitals == Capitals::mixed)
        return word;
    if (capitals == Capitals::all)
        return word.toUpper();
    const int first = my_classes::code_point_at(word, 0).length;
    return word.left(first).toUpper() + word.mid(first);
}

bool is_one_slip_from(QStringView word, QStringView other)
{
    const auto start = std::mismatch(word.begin(), word.end(), other.begin(), other.end());
    word = word.sliced(start.first - word.begin());
    other = other.sliced(start.second - other.begin());
    while (!word.isEmpty() && !other.isEmpty() && word.back() == other.back()) {
        word.chop(1);
        other.chop(1);
    }
    const bool exchanged = word.size() == 2 && other.size() == 2 && word[0] == other[1] && word[1] == other[0];
    return exchanged || (word.size() <= 1 && other.size() <= 1);
}

} // namespace my_spellchecker
