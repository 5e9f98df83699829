// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QRegularExpressionMatchIterator>
#include <QtCore/QString>
#include <QtCore/QStringMatcher>

#include <optional>

namespace my_classes {

class DocumentText;

/// The search text, a regular expression as typed, between two word boundaries.
QRegularExpression whole_words(const QString &pattern);

/// The matches in `text`; nothing if there is none, or the pattern is invalid or runs away.
std::optional<QRegularExpressionMatchIterator> find_whole_words(const QString &pattern, const QString &text);

/// Keeps the first whole-word match of a search text without pattern characters while the text is being edited. Such a
/// match depends on itself and one character on both sides, so that an edit touches few.
class FirstWholeWord
{
public:
    /// Whether that can be kept for `pattern` in `text`.
    static bool can_keep(const QString &pattern, const QString &text);

    explicit FirstWholeWord(const QString &pattern);

    const QString &pattern() const { return m_pattern; }
    /// The start of the first match, or -1.
    qsizetype find(DocumentText &text);
    /// To be called after every edit of the text.
    void replaced(qsizetype position, qsizetype removed, qsizetype added);

private:
    qsizetype search(DocumentText &text, qsizetype from, qsizetype until) const;

    QString m_pattern;
    QRegularExpression m_expression;
    QStringMatcher m_matcher;
    // No match starts outside [m_unknown_from, m_unknown_until) before m_next, which is a match or, if -1, none.
    qsizetype m_unknown_from = 0;
    qsizetype m_unknown_until;
    qsizetype m_next = -1;
};

} // namespace my_classes
