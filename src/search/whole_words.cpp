// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/whole_words.h"

#include "search/document_text.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace my_classes {

namespace {

constexpr qsizetype k_everything = std::numeric_limits<qsizetype>::max();
constexpr qsizetype k_character = 2; // the most code units of one

} // namespace

QRegularExpression whole_words(const QString &pattern)
{
    // Without this option a boundary is an ASCII one, and "est\u00e1" ends before its last letter.
    return QRegularExpression(u"\\b"_s + pattern + u"\\b"_s, QRegularExpression::UseUnicodePropertiesOption);
}

std::optional<QRegularExpressionMatchIterator> find_whole_words(const QString &pattern, const QString &text)
{
    const QRegularExpression expression = whole_words(pattern);
    if (!expression.isValid()) // asking an invalid one for matches warns
        return {};
    // A pattern that runs away ends at the expression engine's own limit, after some 20 ms, without a match.
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    if (!matches.hasNext())
        return {};
    return matches;
}

bool FirstWholeWord::can_keep(const QString &pattern, const QString &text)
{
    constexpr QStringView k_pattern_characters = u"\\^$.[]|()?*+{}";
    const bool is_plain =
        std::none_of(pattern.begin(), pattern.end(), [&](QChar c) { return k_pattern_characters.contains(c); });
    return is_plain && pattern.isValidUtf16() && text.isValidUtf16() && whole_words(pattern).isValid();
}

FirstWholeWord::FirstWholeWord(const QString &pattern)
    : m_pattern(pattern)
    , m_expression(whole_words(pattern))
    , m_matcher(pattern)
    , m_unknown_until(k_everything)
{
}

qsizetype FirstWholeWord::find(DocumentText &text)
{
    if (m_unknown_from < m_unknown_until) {
        const qsizetype found = search(text, m_unknown_from, m_unknown_until);
        if (found >= 0 || m_unknown_until == k_everything)
            m_next = found;
    }
    m_unknown_from = m_unknown_until = 0;
    return m_next;
}

void FirstWholeWord::replaced(qsizetype position, qsizetype removed, qsizetype added)
{
    const qsizetype touched_from = std::max<qsizetype>(position - m_pattern.size() - k_character, 0);
    const qsizetype touched_until = position + removed + k_character;
    if (m_next >= 0 && m_next < touched_from)
        return;
    if (m_unknown_from < m_unknown_until) { // a second edit before find()
        m_unknown_from = std::min(m_unknown_from, touched_from);
        m_unknown_until = k_everything;
        return;
    }
    m_unknown_from = touched_from;
    m_unknown_until = position + added + k_character;
    if (m_next >= touched_until)
        m_next += added - removed;
    else if (m_next >= 0)
        m_unknown_until = k_everything;
}

/// The first match that starts in [from, until), or -1.
qsizetype FirstWholeWord::search(DocumentText &text, qsizetype from, qsizetype until) const
{
    const qsizetype before = std::max<qsizetype>(from - k_character, 0);
    const QStringView tail = text.tail(std::min(before, text.size()));
    const QStringView part = until == k_everything ? tail : tail.left(until - before + m_pattern.size() - 1);
    for (qsizetype at = from - before; (at = m_matcher.indexIn(part, at)) >= 0; ++at) {
        // The match and a character on both sides, cut between characters.
        qsizetype start = std::max<qsizetype>(at - k_character, 0);
        qsizetype end = std::min(at + m_pattern.size() + k_character, tail.size());
        if (start < at && tail[start].isLowSurrogate())
            ++start;
        if (end > at + m_pattern.size() && tail[end - 1].isHighSurrogate())
            --end;
        const auto match =
            m_expression.match(tail.sliced(start, end - start), at - start, QRegularExpression::NormalMatch,
                               QRegularExpression::AnchorAtOffsetMatchOption);
        if (match.hasMatch())
            return before + at;
    }
    return -1;
}

} // namespace my_classes
