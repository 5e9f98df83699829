// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/misspelled_matcher.h"

#include "frame/code_points.h"
#include "spelling/word_characters.h"

#include <QtCore/QtMath>

#include <algorithm>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype k_beginnings_per_word = 16; // places: one in 16 unlisted words is looked up for nothing

bool is_word_character_before(QStringView text, qsizetype position)
{
    return position > 0 && is_word_character(code_point_before(text, position).value);
}

bool is_word_character_at(QStringView text, qsizetype position)
{
    return position < text.size() && is_word_character(code_point_at(text, position).value);
}

/// A run of word characters.
struct Run
{
    qsizetype end;
    quint32 hash;
};

/// The one that starts at `position`; empty if there is none.
Run run_at(QStringView text, qsizetype position)
{
    quint32 hash = 0x811c9dc5; // FNV-1a
    while (position < text.size()) {
        const CodePoint c = code_point_at(text, position);
        if (!is_word_character(c.value))
            break;
        hash = (hash ^ c.value) * 0x01000193;
        position += c.length;
    }
    return {position, hash ^ (hash >> 16)};
}

/// Whether `word`, taken as a pattern, matches itself and nothing else, and begins with a word character.
bool is_plain(const QString &word)
{
    constexpr QStringView metacharacters = u"\\^$.[|()?*+{";
    return is_word_character_at(word, 0) && word.isValidUtf16() && std::none_of(word.begin(), word.end(), [&](QChar c) {
               return !is_word_character(c.unicode()) && metacharacters.contains(c);
           });
}

QList<MisspelledMatcher::Range> merged(QList<MisspelledMatcher::Range> ranges)
{
    using Range = MisspelledMatcher::Range;
    std::sort(ranges.begin(), ranges.end(), [](const Range &a, const Range &b) { return a.start < b.start; });
    QList<Range> result;
    for (const Range &range : ranges) {
        if (!result.isEmpty() && range.start <= result.last().start + result.last().length)
            result.last().length = std::max(result.last().length, range.start + range.length - result.last().start);
        else
            result.append(range);
    }
    return result;
}

} // namespace

/// Shares the words, most of which are plain.
MisspelledMatcher::MisspelledMatcher(const QSet<QString> &words)
    : m_words(words)
{
    for (const QString &word : words) {
        if (is_plain(word)) {
            note_compound(word);
        } else {
            m_words.remove(word);
            add_pattern(word);
        }
    }
    note_beginnings();
}

void MisspelledMatcher::add(const QString &word)
{
    if (!is_plain(word)) {
        add_pattern(word);
        return;
    }
    m_words.insert(word);
    note_compound(word);
    if (m_words.size() * k_beginnings_per_word > static_cast<qsizetype>(m_beginnings.size()))
        note_beginnings();
    else
        m_beginnings[run_at(word, 0).hash & (m_beginnings.size() - 1)] = true;
}

void MisspelledMatcher::add_pattern(const QString &word)
{
    QRegularExpression pattern(u"\\b"_s + word + u"\\b"_s, QRegularExpression::UseUnicodePropertiesOption);
    if (pattern.isValid())
        m_patterns.push_back(pattern);
}

void MisspelledMatcher::note_compound(const QString &word)
{
    const qsizetype first_end = run_at(word, 0).end;
    if (first_end < word.size())
        m_compound_lengths[word.left(first_end)].insert(word.size());
}

void MisspelledMatcher::note_beginnings()
{
    const auto places = static_cast<quint64>(2 * m_words.size() * k_beginnings_per_word);
    m_beginnings.assign(qNextPowerOfTwo(places), false);
    for (const QString &word : std::as_const(m_words))
        m_beginnings[run_at(word, 0).hash & (m_beginnings.size() - 1)] = true;
}

bool MisspelledMatcher::may_begin_a_word(quint32 hash) const
{
    return m_beginnings[hash & (m_beginnings.size() - 1)];
}

QList<MisspelledMatcher::Range> MisspelledMatcher::ranges(const QString &text) const
{
    QList<Range> found;
    if (is_empty() || !text.isValidUtf16()) // no expression matches text with half a character in it
        return found;
    QHash<QString, int> free_from; // per compound word: its matches do not overlap each other
    for (qsizetype position = 0; position < text.size();) {
        const auto [end, hash] = run_at(text, position);
        if (end == position) {
            position += code_point_at(text, position).length;
            continue;
        }
        if (may_begin_a_word(hash)) {
            const QString run = QString::fromRawData(text.constData() + position, end - position);
            if (m_words.contains(run))
                found.append({static_cast<int>(position), static_cast<int>(end - position)});
            add_compound_matches(text, run, static_cast<int>(position), &free_from, &found);
        }
        position = end;
    }
    add_pattern_matches(text, &found);
    return m_compound_lengths.isEmpty() && m_patterns.empty() ? found : merged(found);
}

void MisspelledMatcher::add_compound_matches(const QString &text, const QString &first_run, int start,
                                             QHash<QString, int> *free_from, QList<Range> *found) const
{
    const auto lengths = m_compound_lengths.constFind(first_run);
    if (lengths == m_compound_lengths.constEnd())
        return;
    for (const qsizetype length : *lengths) {
        const qsizetype end = start + length;
        if (end > text.size())
            continue;
        const QString word = QString::fromRawData(text.constData() + start, length);
        // Behind a word that ends in a mark the boundary is where a word character follows.
        const bool bounded = is_word_character_before(text, end) != is_word_character_at(text, end);
        if (!bounded || start < free_from->value(word) || !m_words.contains(word))
            continue;
        found->append({start, static_cast<int>(length)});
        free_from->insert(word, static_cast<int>(end)); // the text outlives both
    }
}

void MisspelledMatcher::add_pattern_matches(const QString &text, QList<Range> *found) const
{
    for (const QRegularExpression &pattern : m_patterns) {
        for (QRegularExpressionMatchIterator matches = pattern.globalMatch(text); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            if (match.capturedLength() > 0)
                found->append({static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength())});
        }
    }
}

} // namespace my_classes
