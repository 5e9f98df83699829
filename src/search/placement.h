// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QRect>

namespace my_classes {

/// Where a window of `size`, frame included, goes on the screen without covering `match`: beside the text's window
/// where there is room, else over a corner of the text, the upper one at the end of the lines first. Global
/// coordinates.
QPoint place_beside(const QRect &match, const QRect &text, const QRect &window, const QRect &screen, const QSize &size,
                    bool is_right_to_left);

} // namespace my_classes
