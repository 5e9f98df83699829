// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <vector>

namespace my_classes {

/// Finds what the expressions \b word \b of many words match in a paragraph, in one pass over it.
///
/// Words that could mean something else as patterns than the text they are go through their expression.
class MisspelledMatcher
{
public:
    struct Range
    {
        int start;
        int length;
    };

    explicit MisspelledMatcher(const QSet<QString> &words);

    void add(const QString &word);
    /// False for a word that is a pattern: these stay.
    bool remove(const QString &word) { return m_words.remove(word); }

    /// Where `text` is to be underlined: in order, neither overlapping nor touching.
    QList<Range> ranges(const QString &text) const;

    bool is_empty() const { return m_words.isEmpty() && m_patterns.empty(); }

private:
    void add_pattern(const QString &word);
    void note_compound(const QString &word);
    void note_beginnings();
    bool may_begin_a_word(quint32 hash) const;
    void add_compound_matches(const QString &text, const QString &first_run, int start, QHash<QString, int> *free_from,
                              QList<Range> *found) const;
    void add_pattern_matches(const QString &text, QList<Range> *found) const;

    QSet<QString> m_words;                              // that are what they say and begin with a word character
    QHash<QString, QSet<qsizetype>> m_compound_lengths; // of those with others in them, by their first run
    std::vector<bool> m_beginnings;                     // by the hash of a first run: spares looking most words up
    std::vector<QRegularExpression> m_patterns;
};

} // namespace my_classes
