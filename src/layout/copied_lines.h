// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextOption>

QT_BEGIN_NAMESPACE
class QTextLayout;
QT_END_NAMESPACE

namespace my_classes {

/// Gives a layout the lines that another one has got of the same text from Qt, in a document with that way to wrap.
/// QTextCursor and QTextEdit ask the paragraphs themselves for lines.
void copy_lines(const QTextLayout *from, QTextLayout *to, QTextOption::WrapMode wrap_mode);

} // namespace my_classes
