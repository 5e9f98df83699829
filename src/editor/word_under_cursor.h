// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextCursor>

namespace my_classes {

/// `cursor` with the word that it stands in or touches selected, or without a selection if there is none.
///
/// A word as QTextCursor::WordUnderCursor has it, except that it holds a letter or digit, that a cursor behind it is
/// still in it whatever follows, that typographic quotes, dashes and the like end it as the ASCII signs do, and that an
/// apostrophe between two letters belongs to it.
QTextCursor word_under_cursor(QTextCursor cursor);

} // namespace my_classes
