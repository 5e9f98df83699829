// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frame/sum_tree.h"

#include <QtCore/QtGlobal>

#include <algorithm>
#include <vector>

namespace my_classes {

/// Lengths in whole 1/64 pixels, as Qt's text engine counts: their sums are exact in any order.
using Units = qint64;

constexpr Units to_units(qreal pixels)
{
    return static_cast<Units>(pixels * 64); // truncated
}

constexpr qreal to_pixels(Units units)
{
    return static_cast<qreal>(units) / 64;
}

/// What is known of a paragraph's place without its lines.
struct ParagraphExtent
{
    qint32 height = 0;        // units, from the end of the paragraph before: the gap is included
    qint32 gap = 0;           // units
    qint32 width = 0;         // units, with the side margins
    bool is_measured = false; // otherwise an estimate
    bool has_lines = false;   // its layout may: not if a change of formats has dropped them
    bool is_cached = false;   // whether its layout keeps the glyphs, not the lines alone
};

/// The extents of all paragraphs, in order.
class ParagraphHeights
{
public:
    int count() const { return m_tree.count(); }
    int unmeasured_count() const { return m_tree.total().unmeasured; }
    int with_lines_count() const { return m_tree.total().with_lines; }
    int cached_count() const { return m_tree.total().cached; }
    /// Of all paragraphs together.
    Units total() const { return m_tree.total().height; }
    /// The largest one.
    Units width() const { return m_tree.total().widest; }

    /// The end of the paragraph before; `index` may be count().
    Units top(int index) const { return m_tree.sum_before(index).height; }
    /// The paragraph at a height, the first or last one beyond them.
    int at(Units y) const;
    ParagraphExtent extent(int index) const { return m_tree.at(index); }
    void set_extent(int index, const ParagraphExtent &extent) { m_tree.set(index, extent); }
    std::vector<ParagraphExtent> extents(int first, int count) const { return m_tree.values(first, count); }
    /// The first one of that width.
    int widest() const;
    /// The first one not measured, from `index` on; -1 if there is none.
    int next_unmeasured(int index) const;
    /// Likewise the first one that may have lines.
    int next_with_lines(int index) const;
    /// Likewise the first one whose glyphs are kept.
    int next_cached(int index) const;
    void replace(int first, int removed, const std::vector<ParagraphExtent> &added);
    /// Makes estimates of all heights: `factor` times as high in whole pixels, and without lines. Widths are forgotten,
    /// or grow alike.
    void estimate_from_present(double factor, bool keeps_widths);

private:
    struct Sum
    {
        Sum() = default;
        explicit Sum(const ParagraphExtent &extent);
        Sum operator+(const Sum &other) const;

        Units height = 0;
        int unmeasured = 0;
        int with_lines = 0;
        int cached = 0;
        qint32 widest = 0;
    };

    SumTree<ParagraphExtent, Sum> m_tree;
};

} // namespace my_classes
