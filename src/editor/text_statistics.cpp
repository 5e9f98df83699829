// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_statistics.h"

#include <QtCore/QChar>

namespace my_classes {

TextCounts count_text(QStringView text)
{
    TextCounts counts;
    bool in_word = false;
    bool in_sentence = false;
    int surrogate_pairs = 0;
    QChar previous;
    for (const QChar c : text) {
        if (c.isLowSurrogate() && previous.isHighSurrogate()) {
            ++surrogate_pairs;
            previous = QChar(); // a pair is used up
        } else {
            previous = c;
        }
        if (c.isSpace()) {
            in_word = false;
            continue;
        }
        counts.words += in_word ? 0 : 1;
        in_word = true;
        const bool ends_sentence = c == u'.' || c == u'!' || c == u'?';
        counts.sentences += !ends_sentence && !in_sentence ? 1 : 0;
        in_sentence = !ends_sentence;
        if (counts.is_blank)
            counts.starts_inside_sentence = in_sentence;
        counts.is_blank = false;
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
