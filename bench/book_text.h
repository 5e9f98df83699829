// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cmath>
#include <random>

namespace bench {

/// Words to write with: those of the installed English dictionary, the common ones first by length.
inline const QStringList &vocabulary()
{
    static const QStringList words = [] {
        QStringList all;
        QFile file(QStringLiteral("/usr/share/hunspell/en_US.dic"));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The benchmarks need the dictionary of the package hunspell-en-us");
        file.readLine(); // the number of entries
        while (!file.atEnd()) {
            const QString word = QString::fromUtf8(file.readLine()).section(u'/', 0, 0).trimmed();
            if (word.size() > 1 && word.at(0).isLower())
                all.append(word);
        }
        std::mt19937 random(7);
        std::shuffle(all.begin(), all.end(), random);
        std::stable_sort(all.begin(), all.end(),
                         [](const QString &a, const QString &b) { return a.size() / 4 < b.size() / 4; });
        all.resize(std::min<qsizetype>(all.size(), 20'000));
        return all;
    }();
    return words;
}

/// A seeded text like a book's: paragraphs of about 30 words joined by line feeds, sentences of about 12, words as
/// unevenly frequent as in real texts, a typing error in 2 of 100.
inline QString book_text(int word_count, unsigned seed = 1)
{
    std::mt19937 random(seed);
    const QStringList &words = vocabulary();
    std::uniform_real_distribution<double> chance(0.0, 1.0);
    const double log_count = std::log(static_cast<double>(words.size()));
    QString text;
    text.reserve(word_count * 7);
    int left_in_sentence = 0;
    int left_in_paragraph = 30;
    for (int i = 0; i < word_count; ++i) {
        QString word = words.at(std::min<qsizetype>(words.size() - 1, std::exp(chance(random) * log_count) - 1));
        if (chance(random) < 0.02) {
            const qsizetype at = static_cast<qsizetype>(chance(random) * (word.size() - 1));
            qSwap(word[at], word[at + 1]);
            word.insert(at, QChar(u'a' + static_cast<int>(chance(random) * 26)));
        }
        if (left_in_sentence == 0) {
            word[0] = word[0].toUpper();
            left_in_sentence = 6 + static_cast<int>(chance(random) * 12);
        }
        text += word;
        if (--left_in_sentence == 0)
            text += u'.';
        if (--left_in_paragraph == 0) {
            if (left_in_sentence > 0)
                text += u'.';
            left_in_sentence = 0;
            left_in_paragraph = 20 + static_cast<int>(chance(random) * 20);
            text += u'\n';
        } else {
            text += u' ';
        }
    }
    return text;
}

} // namespace bench
