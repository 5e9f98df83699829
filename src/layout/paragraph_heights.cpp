// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/paragraph_heights.h"

#include <algorithm>

namespace my_classes {

Units ParagraphHeights::top(int index) const
{
    Units before = 0;
    for (int node = m_root; node != 0;) {
        const Node &here = m_nodes[node];
        const int left_count = m_nodes[here.left].count;
        if (index <= left_count) {
            node = here.left;
        } else {
            before += m_nodes[here.left].sum + here.own.height;
            index -= left_count + 1;
            node = here.right;
        }
    }
    return before;
}

int ParagraphHeights::at(Units y) const
{
    int index = 0;
    for (int node = m_root; node != 0;) {
        const Node &here = m_nodes[node];
        const Units left_sum = m_nodes[here.left].sum;
        const int left_count = m_nodes[here.left].count;
        if (y < left_sum) {
            node = here.left;
        } else if (y < left_sum + here.own.height) {
            return index + left_count;
        } else {
            y -= left_sum + here.own.height;
            index += left_count + 1;
            node = here.right;
        }
    }
    return std::clamp(index, 0, std::max(0, count() - 1));
}

ParagraphExtent ParagraphHeights::extent(int index) const
{
    for (int node = m_root; node != 0;) {
        const Node &here = m_nodes[node];
        const int left_count = m_nodes[here.left].count;
        if (index == left_count)
            return here.own;
        node = index < left_count ? here.left : here.right;
        index -= index < left_count ? 0 : left_count + 1;
    }
    return {};
}

void ParagraphHeights::set_extent(int index, const ParagraphExtent &extent)
{
    std::vector<int> path;
    for (int node = m_root; node != 0;) {
        path.push_back(node);
        const int left_count = m_nodes[m_nodes[node].left].count;
        if (index == left_count) {
            m_nodes[node].own = extent;
            break;
        }
        node = index < left_count ? m_nodes[node].left : m_nodes[node].right;
        index -= index < left_count ? 0 : left_count + 1;
    }
    for (auto node = path.rbegin(); node != path.rend(); ++node)
        refresh(*node);
}

std::vector<ParagraphExtent> ParagraphHeights::extents(int first, int count) const
{
    std::vector<ParagraphExtent> all;
    all.reserve(count);
    append_to(all, m_root, first, first + count);
    return all;
}

void ParagraphHeights::append_to(std::vector<ParagraphExtent> &extents, int node, int first, int end) const
{
    if (node == 0 || end <= 0 || first >= m_nodes[node].count)
        return;
    const Node &here = m_nodes[node];
    const int left_count = m_nodes[here.left].count;
    append_to(extents, here.left, first, end);
    if (first <= left_count && left_count < end)
        extents.push_back(here.own);
    append_to(extents, here.right, first - left_count - 1, end - left_count - 1);
}

int ParagraphHeights::next_unmeasured(int index) const
{
    return next_unmeasured_below(m_root, index);
}

int ParagraphHeights::next_unmeasured_below(int node, int index) const
{
    const Node &here = m_nodes[node];
    if (here.unmeasured == 0 || index >= here.count)
        return -1;
    const int left_count = m_nodes[here.left].count;
    if (index < left_count) {
        const int found = next_unmeasured_below(here.left, index);
        if (found >= 0)
            return found;
    }
    if (index <= left_count && !here.own.is_measured)
        return left_count;
    const int found = next_unmeasured_below(here.right, std::max(0, index - left_count - 1));
    return found < 0 ? -1 : found + left_count + 1;
}

void ParagraphHeights::replace(int first, int removed, const std::vector<ParagraphExtent> &added)
{
    const auto [head, rest] = split(m_root, first);
    const auto [middle, tail] = split(rest, removed);
    release(middle);
    const int inserted = build(added, 0, static_cast<int>(added.size()));
    m_root = join(join(head, inserted), tail);
}

int ParagraphHeights::make(const ParagraphExtent &extent)
{
    int node = static_cast<int>(m_nodes.size());
    if (m_free.empty()) {
        m_nodes.emplace_back();
    } else {
        node = m_free.back();
        m_free.pop_back();
        m_nodes[node] = Node();
    }
    m_nodes[node].own = extent;
    return node;
}

int ParagraphHeights::build(const std::vector<ParagraphExtent> &extents, int first, int end)
{
    if (first >= end)
        return 0;
    const int middle = first + (end - first) / 2;
    const int node = make(extents[middle]);
    const int left = build(extents, first, middle);
    const int right = build(extents, middle + 1, end);
    m_nodes[node].left = left;
    m_nodes[node].right = right;
    refresh(node);
    return node;
}

void ParagraphHeights::release(int node)
{
    if (node == 0)
        return;
    release(m_nodes[node].left);
    release(m_nodes[node].right);
    m_free.push_back(node);
}

void ParagraphHeights::refresh(int node)
{
    Node &here = m_nodes[node];
    const Node &left = m_nodes[here.left];
    const Node &right = m_nodes[here.right];
    here.count = left.count + 1 + right.count;
    here.unmeasured = left.unmeasured + (here.own.is_measured ? 0 : 1) + right.unmeasured;
    here.widest = std::max({left.widest, here.own.width, right.widest});
    here.sum = left.sum + here.own.height + right.sum;
}

/// The first `index` paragraphs below a node, and the others.
std::pair<int, int> ParagraphHeights::split(int node, int index)
{
    if (node == 0)
        return {0, 0};
    const int left_count = m_nodes[m_nodes[node].left].count;
    if (index <= left_count) {
        const auto [head, tail] = split(m_nodes[node].left, index);
        m_nodes[node].left = tail;
        refresh(node);
        return {head, node};
    }
    const auto [head, tail] = split(m_nodes[node].right, index - left_count - 1);
    m_nodes[node].right = head;
    refresh(node);
    return {node, tail};
}

int ParagraphHeights::join(int left, int right)
{
    if (left == 0 || right == 0)
        return left + right;
    m_random ^= m_random << 13;
    m_random ^= m_random >> 17;
    m_random ^= m_random << 5;
    // The larger side gets its root to the top as much more often: this keeps the tree as flat as one made at random.
    const auto both = static_cast<quint32>(m_nodes[left].count) + static_cast<quint32>(m_nodes[right].count);
    if (m_random % both < static_cast<quint32>(m_nodes[left].count)) {
        const int joined = join(m_nodes[left].right, right);
        m_nodes[left].right = joined;
        refresh(left);
        return left;
    }
    const int joined = join(left, m_nodes[right].left);
    m_nodes[right].left = joined;
    refresh(right);
    return right;
}

} // namespace my_classes
