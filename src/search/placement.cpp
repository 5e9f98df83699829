// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/placement.h"

#include <algorithm>
#include <utility>

namespace my_classes {

QPoint place_beside(const QRect &match, const QRect &text, const QRect &window, const QRect &screen, const QSize &size,
                    bool is_right_to_left)
{
    int beside_end = window.right() + 1, beside_start = window.left() - size.width();
    const QRect seen_text = text & screen;
    int end = seen_text.right() + 1 - size.width(), start = seen_text.left();
    if (is_right_to_left) {
        std::swap(beside_end, beside_start);
        std::swap(end, start);
    }
    const int top = seen_text.top(), bottom = seen_text.bottom() + 1 - size.height();
    const QPoint places[] = {{beside_end, top},
                             {beside_start, top},
                             {end, window.bottom() + 1},
                             {end, top},
                             {end, bottom},
                             {start, bottom},
                             {start, top},
                             {end, match.bottom() + 1},
                             {end, match.top() - size.height()}};
    const auto *found = std::find_if(std::begin(places), std::end(places), [&](const QPoint &place) {
        const QRect taken(place, size);
        return screen.contains(taken) && !taken.intersects(match);
    });
    return found == std::end(places) ? places[3] : *found;
}

} // namespace my_classes
