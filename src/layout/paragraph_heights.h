// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

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
};

/// The extents of all paragraphs, in order.
///
/// A binary tree, balanced by chance, whose nodes hold the sums of all below: every call costs the logarithm of the
/// number of paragraphs, and what it inserts or removes.
class ParagraphHeights
{
public:
    int count() const { return m_nodes[m_root].count; }
    int unmeasured_count() const { return m_nodes[m_root].unmeasured; }
    /// Of all paragraphs together.
    Units total() const { return m_nodes[m_root].sum; }
    /// The largest one.
    Units width() const { return m_nodes[m_root].widest; }

    /// The end of the paragraph before; `index` may be count().
    Units top(int index) const;
    /// The paragraph at a height, the first or last one beyond them.
    int at(Units y) const;
    ParagraphExtent extent(int index) const;
    void set_extent(int index, const ParagraphExtent &extent);
    std::vector<ParagraphExtent> extents(int first, int count) const;
    /// The first one not measured, from `index` on; -1 if there is none.
    int next_unmeasured(int index) const;
    void replace(int first, int removed, const std::vector<ParagraphExtent> &added);

private:
    struct Node
    {
        int left = 0;
        int right = 0;
        int count = 0;
        int unmeasured = 0;
        qint32 widest = 0;
        Units sum = 0;
        ParagraphExtent own;
    };

    int make(const ParagraphExtent &extent);
    int build(const std::vector<ParagraphExtent> &extents, int first, int end);
    void release(int node);
    void refresh(int node);
    std::pair<int, int> split(int node, int index);
    int join(int left, int right);
    void append_to(std::vector<ParagraphExtent> &extents, int node, int first, int end) const;
    int next_unmeasured_below(int node, int index) const;

    std::vector<Node> m_nodes = std::vector<Node>(1); // the first one stands for "none"
    std::vector<int> m_free;
    int m_root = 0;
    quint32 m_random = 2463534242;
};

} // namespace my_classes
