// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/line_spacing.h"

namespace my_classes {

bool has_factor_line_height(const QTextBlockFormat &format)
{
    return format.lineHeightType() == k_factor_line_height;
}

QTextBlockFormat with_known_line_height(QTextBlockFormat format)
{
    if (has_factor_line_height(format))
        format.setLineHeight(format.lineHeight() > 0 ? format.lineHeight() * 100 : 100,
                             QTextBlockFormat::ProportionalHeight);
    return format;
}

qreal line_height(const QTextBlockFormat &format, qreal natural, qreal scale)
{
    if (has_factor_line_height(format))
        return format.lineHeight() > 0 ? natural * format.lineHeight() : natural;
    return format.lineHeight(natural, scale);
}

} // namespace my_classes
