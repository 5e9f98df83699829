// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/line_spacing.h"

#include <QtGui/QTextFormat>

namespace my_classes {

qreal line_height(const QTextBlockFormat &format, qreal natural, qreal scale)
{
    if (format.lineHeightType() == k_factor_line_height)
        return format.lineHeight() > 0 ? natural * format.lineHeight() : natural;
    return format.lineHeight(natural, scale);
}

} // namespace my_classes
