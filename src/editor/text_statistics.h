// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QStringView>

namespace my_classes {

/// Counts of a piece of text. Pieces separated by white space add up with +, so that a document's counts can be
/// kept per paragraph although a sentence may run over several.
struct TextCounts
{
    int words = 0;
    int sentences = 0;
    int characters = 0;                  ///< Unicode code points
    int code_units = 0;                  ///< UTF-16
    bool starts_inside_sentence = false; ///< the first character that is no white space does not end a sentence
    bool ends_inside_sentence = false;   ///< likewise the last one
    bool is_blank = true;                ///< nothing but white space
};

/// Counts of `text` taken by itself. A word is a run without white space; a sentence is a piece between '.', '!' or
/// '?' that holds more than white space.
TextCounts count_text(QStringView text);

/// Counts of `first` followed by `second`; white space must stand between them.
TextCounts operator+(const TextCounts &first, const TextCounts &second);

} // namespace my_classes
