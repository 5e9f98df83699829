// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/paragraph_heights.h"

#include <cmath>

namespace my_classes {

ParagraphHeights::Sum::Sum(const ParagraphExtent &extent)
    : height(extent.height)
    , unmeasured(extent.is_measured ? 0 : 1)
    , with_lines(extent.has_lines ? 1 : 0)
    , cached(extent.is_cached ? 1 : 0)
    , widest(extent.width)
{
}

ParagraphHeights::Sum ParagraphHeights::Sum::operator+(const Sum &other) const
{
    Sum sum = *this;
    sum.height += other.height;
    sum.unmeasured += other.unmeasured;
    sum.with_lines += other.with_lines;
    sum.cached += other.cached;
    sum.widest = std::max(widest, other.widest);
    return sum;
}

int ParagraphHeights::at(Units y) const
{
    const int index = m_tree.count_until([y](const Sum &sum) { return sum.height > y; });
    return std::clamp(index, 0, std::max(0, count() - 1));
}

int ParagraphHeights::widest() const
{
    const qint32 width = m_tree.total().widest;
    return m_tree.find(0, [width](const Sum &sum) { return sum.widest == width; });
}

int ParagraphHeights::next_unmeasured(int index) const
{
    return m_tree.find(index, [](const Sum &sum) { return sum.unmeasured > 0; });
}

int ParagraphHeights::next_with_lines(int index) const
{
    return m_tree.find(index, [](const Sum &sum) { return sum.with_lines > 0; });
}

int ParagraphHeights::next_cached(int index) const
{
    return m_tree.find(index, [](const Sum &sum) { return sum.cached > 0; });
}

void ParagraphHeights::replace(int first, int removed, const std::vector<ParagraphExtent> &added)
{
    m_tree.replace(first, removed, added);
}

/// Of whole pixels, as most heights are: what follows does not move by parts of one when they become known.
void ParagraphHeights::estimate_from_present(double factor, bool keeps_widths)
{
    m_tree.change_all([factor, keeps_widths](ParagraphExtent &extent) {
        const double lines = (extent.height - extent.gap) * factor;
        extent.height = static_cast<qint32>(std::lround((extent.gap + lines) / 64) * 64);
        extent.width = keeps_widths ? static_cast<qint32>(extent.width * factor) : 0;
        extent.is_measured = false;
        extent.has_lines = false;
    });
}

} // namespace my_classes
