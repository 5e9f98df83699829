// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QTextBlockFormat;
QT_END_NAMESPACE

namespace my_classes {

/// A line-height type that Qt does not know, of which stored documents are full: it holds a factor.
constexpr int k_factor_line_height = 150;

/// The height of a line whose font asks for `natural` pixels.
qreal line_height(const QTextBlockFormat &format, qreal natural, qreal scale);

} // namespace my_classes
