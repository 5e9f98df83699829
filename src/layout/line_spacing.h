// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextFormat>

namespace my_classes {

/// A line-height type that Qt does not know, of which stored documents are full: it holds a factor. Qt draws the lines
/// of such a paragraph on one another.
constexpr int k_factor_line_height = 150;

bool has_factor_line_height(const QTextBlockFormat &format);

/// The same line heights, told in a way that Qt knows.
QTextBlockFormat with_known_line_height(QTextBlockFormat format);

/// The height of a line whose font asks for `natural` pixels.
qreal line_height(const QTextBlockFormat &format, qreal natural, qreal scale);

} // namespace my_classes
