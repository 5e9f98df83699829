// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/word_under_cursor.h"

#include "frame/code_points.h"

#include <QtGui/QTextBlock>

#include <utility>

namespace my_classes {

namespace {

using Range = std::pair<int, int>; // positions in the paragraph

bool has_letter_or_number(QStringView text)
{
    for (qsizetype i = 0; i < text.size();) {
        const CodePoint c = code_point_at(text, i);
        if (QChar::isLetterOrNumber(c.value))
            return true;
        i += c.length;
    }
    return false;
}

/// Whether the character before `at` is a letter or a mark on one.
bool letter_before(QStringView text, int at)
{
    if (at < 1)
        return false;
    const char32_t c = code_point_before(text, at).value;
    return QChar::isLetter(c) || QChar::isMark(c);
}

bool letter_at(QStringView text, int at)
{
    return at < text.size() && QChar::isLetter(code_point_at(text, at).value);
}

bool is_inner_apostrophe(QStringView text, int at)
{
    return at >= 0 && at < text.size() && (text[at] == u'\'' || text[at] == u'\u2019') && letter_before(text, at) &&
           letter_at(text, at + 1);
}

/// Whether `c` separates words: Qt knows the ASCII signs that do, but takes “quotes”, dashes and the like for letters.
bool is_typographic_sign(char32_t c)
{
    return c > 0x7f && QChar::isPunct(c);
}

/// `word` as far as no typographic sign is between it and `position`, which is in it or at its ends.
Range without_typographic_signs(QStringView text, Range word, int position)
{
    int start = position;
    while (start > word.first && !is_typographic_sign(code_point_before(text, start).value))
        start -= code_point_before(text, start).length;
    int end = position;
    while (end < word.second && !is_typographic_sign(code_point_at(text, end).value))
        end += code_point_at(text, end).length;
    return {start, end};
}

/// What Qt selects at `position`, if that is a word which touches it; otherwise an empty range there.
Range qt_word(const QTextBlock &block, QStringView text, int position)
{
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + position);
    cursor.select(QTextCursor::WordUnderCursor);
    const int start = cursor.selectionStart() - block.position();
    const int end = cursor.selectionEnd() - block.position();
    const bool touches = start >= 0 && end <= text.size() && start <= position && position <= end;
    if (!touches)
        return {position, position};
    const Range word = without_typographic_signs(text, {start, end}, position);
    return has_letter_or_number(text.mid(word.first, word.second - word.first)) ? word : Range(position, position);
}

} // namespace

QTextCursor word_under_cursor(QTextCursor cursor)
{
    const QTextBlock block = cursor.block();
    const QString text = block.text();
    const int position = cursor.position() - block.position();

    Range word = qt_word(block, text, position);
    if (word.first == word.second && position > 0) {
        const Range before = qt_word(block, text, position - 1);
        if (before.second == position)
            word = before;
    }
    if (word.first == word.second && is_inner_apostrophe(text, position))
        word = {position, position + 1};
    while (word.first < word.second && is_inner_apostrophe(text, word.second))
        word.second = qt_word(block, text, word.second + 1).second;
    while (word.first < word.second && is_inner_apostrophe(text, word.first - 1))
        word.first = qt_word(block, text, word.first - 2).first;

    cursor.setPosition(block.position() + word.first);
    cursor.setPosition(block.position() + word.second, QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace my_classes
