// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/word_tokenizer.h"

#include "frame/code_points.h"

#include <QtCore/QLatin1StringView>

#include <algorithm>
#include <array>

namespace my_spellchecker {

using namespace Qt::StringLiterals;

namespace {

enum class Kind : unsigned char { other, letter, mark, number, apostrophe, space, address_sign };

constexpr qsizetype k_longest_word = 200; // code units; no language's words are longer, and engines truncate

constexpr std::array<Kind, 128> ascii_kinds()
{
    std::array<Kind, 128> kinds{};
    for (int c = 0; c < 128; ++c) {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
            kinds[c] = Kind::letter;
        else if (c >= '0' && c <= '9')
            kinds[c] = Kind::number;
        else if (c == ' ' || (c >= 9 && c <= 13))
            kinds[c] = Kind::space;
        else if (c == '@' || c == '/' || c == '\\' || c == ':' || c == '.')
            kinds[c] = Kind::address_sign;
    }
    kinds['\''] = Kind::apostrophe;
    return kinds;
}

constexpr std::array<Kind, 128> k_ascii_kinds = ascii_kinds();

Kind kind_of(char32_t c)
{
    if (c < k_ascii_kinds.size())
        return k_ascii_kinds[c];
    if (c == 0x2019)
        return Kind::apostrophe;
    if (QChar::isLetter(c))
        return Kind::letter;
    if (QChar::isMark(c))
        return Kind::mark;
    if (QChar::isNumber(c))
        return Kind::number;
    // An embedded object separates like white space.
    if (QChar::isSpace(c) || c == QChar::ObjectReplacementCharacter)
        return Kind::space;
    return Kind::other;
}

struct Step
{
    Kind kind;
    int length; // code units
};

Step step_at(QStringView text, qsizetype position)
{
    const my_classes::CodePoint c = my_classes::code_point_at(text, position);
    return {kind_of(c.value), c.length};
}

QStringView without_punctuation_around(QStringView chunk)
{
    constexpr QStringView opening = u"([{<\"'\u201c\u2018\u00ab\u00bf\u00a1";
    constexpr QStringView closing = u")]}>\"'\u201d\u2019\u00bb.,;:!?\u2026";
    while (!chunk.isEmpty() && opening.contains(chunk.front()))
        chunk = chunk.sliced(1);
    while (!chunk.isEmpty() && closing.contains(chunk.back()))
        chunk.chop(1);
    return chunk;
}

bool is_letter_or_number(QChar c)
{
    return c.isLetterOrNumber();
}

/// "example.com", "notes.txt": an ending that stands for an address or a file rather than a word after a full stop.
bool has_known_ending(QStringView name)
{
    static constexpr QLatin1StringView k_endings[] = {
        "app"_L1,  "bmp"_L1,  "com"_L1, "cpp"_L1, "css"_L1,  "csv"_L1, "dev"_L1, "doc"_L1,
        "docx"_L1, "edu"_L1,  "eu"_L1,  "gov"_L1, "html"_L1, "htm"_L1, "io"_L1,  "jpg"_L1,
        "jpeg"_L1, "json"_L1, "md"_L1,  "mil"_L1, "net"_L1,  "odt"_L1, "org"_L1, "pdf"_L1,
        "png"_L1,  "py"_L1,   "sh"_L1,  "svg"_L1, "txt"_L1,  "uk"_L1,  "xml"_L1, "zip"_L1};
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot < 1 || !is_letter_or_number(name[dot - 1]))
        return false;
    const QStringView ending = name.sliced(dot + 1);
    return std::any_of(std::begin(k_endings), std::end(k_endings),
                       [ending](QLatin1StringView known) { return ending == known; });
}

bool is_file_path(QStringView chunk)
{
    if (chunk.contains(u'\\'))
        return true;
    const qsizetype slashes = chunk.count(u'/');
    if (slashes == 0)
        return false;
    // "and/or" is two words; "/etc", "~/notes", "./run", "a/b/c" and "docs/notes.txt" are paths.
    return slashes > 1 || (chunk.front() == u'/' && chunk.size() > 1) || chunk.front() == u'~' ||
           chunk.front() == u'.' || chunk.sliced(chunk.indexOf(u'/')).contains(u'.');
}

/// Whether a run without white space is an e-mail or web address or a file path.
bool is_address_or_path(QStringView chunk)
{
    chunk = without_punctuation_around(chunk);
    if (chunk.isEmpty())
        return false;
    const qsizetype at = chunk.indexOf(u'@');
    if (at > 0 && at + 1 < chunk.size() && is_letter_or_number(chunk[at + 1]))
        return true;
    if (chunk.contains("://"_L1) || chunk.startsWith("www."_L1, Qt::CaseInsensitive) ||
        chunk.startsWith("mailto:"_L1, Qt::CaseInsensitive))
        return true;
    const QStringView host = chunk.left(chunk.indexOf(u'/') < 0 ? chunk.size() : chunk.indexOf(u'/'));
    return has_known_ending(host) || has_known_ending(chunk) || is_file_path(chunk);
}

} // namespace

QStringView WordTokenizer::next()
{
    while (m_position < m_chunk_end || next_chunk()) {
        Step step = step_at(m_text, m_position);
        if (step.kind != Kind::letter && step.kind != Kind::number) {
            m_position += step.length;
            continue;
        }
        const qsizetype start = m_position;
        bool has_number = false;
        int letters = 0;
        while (true) {
            has_number = has_number || step.kind == Kind::number;
            letters += step.kind == Kind::letter ? 1 : 0;
            m_position += step.length;
            if (m_position >= m_chunk_end)
                break;
            step = step_at(m_text, m_position);
            if (step.kind == Kind::apostrophe && m_position + 1 < m_chunk_end) {
                const Step after = step_at(m_text, m_position + 1);
                if (after.kind != Kind::letter && after.kind != Kind::number)
                    break;
                ++m_position;
                step = after;
            }
            if (step.kind != Kind::letter && step.kind != Kind::mark && step.kind != Kind::number)
                break;
        }
        if (letters > 1 && !has_number && m_position - start <= k_longest_word)
            return m_text.sliced(start, m_position - start);
    }
    return {};
}

/// Moves on to the next run without white space that is neither address nor path. False at the end of the text.
bool WordTokenizer::next_chunk()
{
    while (m_position < m_text.size()) {
        Step step = step_at(m_text, m_position);
        if (step.kind == Kind::space) {
            m_position += step.length;
            continue;
        }
        bool has_address_sign = false;
        m_chunk_end = m_position;
        while (step.kind != Kind::space) {
            // A full stop at the end is no sign of an address; most words have nothing else.
            has_address_sign = has_address_sign || step.kind == Kind::address_sign;
            m_chunk_end += step.length;
            if (m_chunk_end >= m_text.size())
                break;
            step = step_at(m_text, m_chunk_end);
        }
        if (!has_address_sign || !is_address_or_path(m_text.sliced(m_position, m_chunk_end - m_position)))
            return true;
        m_position = m_chunk_end;
    }
    return false;
}

} // namespace my_spellchecker
