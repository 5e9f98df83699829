// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QStringView>

namespace my_classes {

struct CodePoint
{
    char32_t value = 0;
    int length = 0; ///< code units
};

/// The code point that starts at `position`, which must be inside `text`. Half a surrogate pair stands for itself.
inline CodePoint code_point_at(QStringView text, qsizetype position)
{
    const QChar c = text[position];
    if (c.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(c, text[position + 1]), 2};
    return {c.unicode(), 1};
}

/// The code point that ends before `position`, which must be inside or at the end of `text` and not at its start.
inline CodePoint code_point_before(QStringView text, qsizetype position)
{
    const QChar c = text[position - 1];
    if (c.isLowSurrogate() && position > 1 && text[position - 2].isHighSurrogate())
        return {QChar::surrogateToUcs4(text[position - 2], c), 2};
    return {c.unicode(), 1};
}

} // namespace my_classes
