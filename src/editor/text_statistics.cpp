// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_statistics.h"

#include <QtCore/QChar>

#include <iterator>

namespace my_classes {

namespace {

enum class Kind : quint8 { InWord, Blank, SentenceEnd, Surrogate };

Kind rare_kind(QChar c)
{
    if (c.isSpace())
        return Kind::Blank;
    return c.isSurrogate() ? Kind::Surrogate : Kind::InWord;
}

struct CommonKinds
{
    constexpr CommonKinds()
    {
        for (const char16_t code : {u'\t', u'\n', u'\v', u'\f', u'\r', u' '})
            of[code] = Kind::Blank;
        for (const char16_t code : {u'.', u'!', u'?'})
            of[code] = Kind::SentenceEnd;
    }

    Kind of[128]{}; // InWord
};
constexpr CommonKinds k_common;

inline Kind kind_of(QChar c)
{
    return c.unicode() < std::size(k_common.of) ? k_common.of[c.unicode()] : rare_kind(c);
}

} // namespace

TextCounts count_text(QStringView text)
{
    TextCounts counts;
    bool in_word = false;
    bool in_sentence = false;
    int surrogate_pairs = 0;
    for (auto c = text.begin(); c != text.end();) {
        const Kind kind = kind_of(*c++);
        if (kind == Kind::Blank) {
            in_word = false;
            continue;
        }
        counts.words += in_word ? 0 : 1;
        in_word = true;
        const bool ends_sentence = kind == Kind::SentenceEnd;
        counts.sentences += !ends_sentence && !in_sentence ? 1 : 0;
        in_sentence = !ends_sentence;
        if (counts.is_blank)
            counts.starts_inside_sentence = in_sentence;
        counts.is_blank = false;
        if (kind == Kind::Surrogate && c != text.end() && c[-1].isHighSurrogate() && c->isLowSurrogate())
            ++surrogate_pairs;
        while (in_sentence && c != text.end() && kind_of(*c) == Kind::InWord) // most of a text: nothing changes
            ++c;
    }
    counts.ends_inside_sentence = in_sentence;
    counts.code_units = static_cast<int>(text.size());
    counts.characters = counts.code_units - surrogate_pairs;
    return counts;
}

TextCounts operator+(const TextCounts &first, const TextCounts &second)
{
    TextCounts counts;
    counts.words = first.words + second.words;
    counts.sentences = first.sentences + second.sentences;
    if (first.ends_inside_sentence && second.starts_inside_sentence)
        --counts.sentences; // one sentence over both
    counts.characters = first.characters + second.characters;
    counts.code_units = first.code_units + second.code_units;
    counts.starts_inside_sentence = first.is_blank ? second.starts_inside_sentence : first.starts_inside_sentence;
    counts.ends_inside_sentence = second.is_blank ? first.ends_inside_sentence : second.ends_inside_sentence;
    counts.is_blank = first.is_blank && second.is_blank;
    return counts;
}

} // namespace my_classes
