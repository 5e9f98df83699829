// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

namespace my_classes {

/// Whether a regular expression with Unicode properties takes `c` for a word character (\w), which decides where its
/// word boundaries are. Asked of the expression engine itself, whose notion differs between its versions. GUI thread.
bool is_word_character(char32_t c);

} // namespace my_classes
