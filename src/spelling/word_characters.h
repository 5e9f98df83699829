// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

namespace my_classes {

/// Whether a regular expression with Unicode properties takes `c` for a word character (\w), which decides where its
/// word boundaries are. Asked of the expression engine itself but for ASCII, since its notion differs between its
/// versions. GUI thread.
bool is_word_character_by_expression(char32_t c);

inline bool is_word_character(char32_t c)
{
    if (c >= 0x80)
        return is_word_character_by_expression(c);
    return (c >= U'0' && c <= U'9') || ((c | 0x20) >= U'a' && (c | 0x20) <= U'z') || c == U'_';
}

} // namespace my_classes
