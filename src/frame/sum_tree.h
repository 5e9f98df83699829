// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <utility>
#include <vector>

namespace my_classes {

/// Values in an order, and what neighbours among them add up to: `Sum(value)` is the sum of one, `+` that of two that
/// follow each other, `Sum()` that of none.
///
/// A binary tree, balanced by chance, whose nodes hold the sums of all below: every call costs the logarithm of the
/// number of values, and what it inserts, removes or returns.
template<typename Value, typename Sum>
class SumTree
{
public:
    int count() const { return m_nodes[m_root].count; }
    const Sum &total() const { return m_nodes[m_root].sum; }

    /// `index` is one of a value.
    const Value &at(int index) const;
    void set(int index, const Value &value);
    void replace(int first, int removed, const std::vector<Value> &added);
    /// Changes all of them, one after the other in no order.
    template<typename Change>
    void change_all(const Change &change);

    /// Of the first values.
    Sum sum_before(int count) const;
    Sum sum_between(int first, int end) const { return sum_below(m_root, first, end); }
    std::vector<Value> values(int first, int count) const;
    /// The first value, from `index` on, whose sum is `wanted`, as then are those of all sums with it; -1 if none is.
    template<typename Wanted>
    int find(int index, const Wanted &wanted) const
    {
        return find_below(m_root, index, wanted);
    }
    /// How many of the first values can be added up without their sum being `too_much`.
    template<typename TooMuch>
    int count_until(const TooMuch &too_much) const;

private:
    struct Node
    {
        int left = 0;
        int right = 0;
        int count = 0;
        Sum sum;
        Value own;
    };

    int make(const Value &value);
    int build(const std::vector<Value> &values, int first, int end);
    void release(int node);
    void refresh(int node);
    void refresh_below(int node);
    std::pair<int, int> split(int node, int index);
    int join(int left, int right);
    Sum sum_below(int node, int first, int end) const;
    void append_to(std::vector<Value> &values, int node, int first, int end) const;
    template<typename Wanted>
    int find_below(int node, int index, const Wanted &wanted) const;

    std::vector<Node> m_nodes = std::vector<Node>(1); // the first one stands for "none"
    std::vector<int> m_free;
    int m_root = 0;
    quint32 m_random = 2463534242;
};

template<typename Value, typename Sum>
const Value &SumTree<Value, Sum>::at(int index) const
{
    int node = m_root;
    for (int left_count = m_nodes[m_nodes[node].left].count; index != left_count;
         left_count = m_nodes[m_nodes[node].left].count) {
        node = index < left_count ? m_nodes[node].left : m_nodes[node].right;
        index -= index < left_count ? 0 : left_count + 1;
    }
    return m_nodes[node].own;
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::set(int index, const Value &value)
{
    std::vector<int> path;
    for (int node = m_root; node != 0;) {
        path.push_back(node);
        const int left_count = m_nodes[m_nodes[node].left].count;
        if (index == left_count) {
            m_nodes[node].own = value;
            break;
        }
        node = index < left_count ? m_nodes[node].left : m_nodes[node].right;
        index -= index < left_count ? 0 : left_count + 1;
    }
    for (auto node = path.rbegin(); node != path.rend(); ++node)
        refresh(*node);
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::replace(int first, int removed, const std::vector<Value> &added)
{
    const auto [head, rest] = split(m_root, first);
    const auto [middle, tail] = split(rest, removed);
    release(middle);
    const int inserted = build(added, 0, static_cast<int>(added.size()));
    m_root = join(join(head, inserted), tail);
}

template<typename Value, typename Sum>
template<typename Change>
void SumTree<Value, Sum>::change_all(const Change &change)
{
    for (std::size_t node = 1; node < m_nodes.size(); ++node)
        change(m_nodes[node].own);
    refresh_below(m_root);
}

template<typename Value, typename Sum>
Sum SumTree<Value, Sum>::sum_before(int count) const
{
    Sum before;
    for (int node = m_root; node != 0;) {
        const Node &here = m_nodes[node];
        const int left_count = m_nodes[here.left].count;
        if (count <= left_count) {
            node = here.left;
        } else {
            before = before + m_nodes[here.left].sum + Sum(here.own);
            count -= left_count + 1;
            node = here.right;
        }
    }
    return before;
}

template<typename Value, typename Sum>
Sum SumTree<Value, Sum>::sum_below(int node, int first, int end) const
{
    const Node &here = m_nodes[node];
    if (first <= 0 && end >= here.count)
        return here.sum;
    if (end <= 0 || first >= here.count)
        return Sum();
    const int left_count = m_nodes[here.left].count;
    Sum sum = sum_below(here.left, first, end);
    if (first <= left_count && left_count < end)
        sum = sum + Sum(here.own);
    return sum + sum_below(here.right, first - left_count - 1, end - left_count - 1);
}

template<typename Value, typename Sum>
std::vector<Value> SumTree<Value, Sum>::values(int first, int count) const
{
    std::vector<Value> all;
    all.reserve(count);
    append_to(all, m_root, first, first + count);
    return all;
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::append_to(std::vector<Value> &values, int node, int first, int end) const
{
    if (node == 0 || end <= 0 || first >= m_nodes[node].count)
        return;
    const Node &here = m_nodes[node];
    const int left_count = m_nodes[here.left].count;
    append_to(values, here.left, first, end);
    if (first <= left_count && left_count < end)
        values.push_back(here.own);
    append_to(values, here.right, first - left_count - 1, end - left_count - 1);
}

template<typename Value, typename Sum>
template<typename Wanted>
int SumTree<Value, Sum>::find_below(int node, int index, const Wanted &wanted) const
{
    const Node &here = m_nodes[node];
    if (index >= here.count || !wanted(here.sum))
        return -1;
    const int left_count = m_nodes[here.left].count;
    if (index < left_count) {
        const int found = find_below(here.left, index, wanted);
        if (found >= 0)
            return found;
    }
    if (index <= left_count && wanted(Sum(here.own)))
        return left_count;
    const int found = find_below(here.right, std::max(0, index - left_count - 1), wanted);
    return found < 0 ? -1 : found + left_count + 1;
}

template<typename Value, typename Sum>
template<typename TooMuch>
int SumTree<Value, Sum>::count_until(const TooMuch &too_much) const
{
    int count = 0;
    Sum before;
    for (int node = m_root; node != 0;) {
        const Node &here = m_nodes[node];
        const Sum with_left = before + m_nodes[here.left].sum;
        if (too_much(with_left)) {
            node = here.left;
            continue;
        }
        before = with_left + Sum(here.own);
        count += m_nodes[here.left].count;
        if (too_much(before))
            return count;
        ++count;
        node = here.right;
    }
    return count;
}

template<typename Value, typename Sum>
int SumTree<Value, Sum>::make(const Value &value)
{
    int node = static_cast<int>(m_nodes.size());
    if (m_free.empty()) {
        m_nodes.emplace_back();
    } else {
        node = m_free.back();
        m_free.pop_back();
        m_nodes[node] = Node();
    }
    m_nodes[node].own = value;
    return node;
}

template<typename Value, typename Sum>
int SumTree<Value, Sum>::build(const std::vector<Value> &values, int first, int end)
{
    if (first >= end)
        return 0;
    const int middle = first + (end - first) / 2;
    const int node = make(values[middle]);
    const int left = build(values, first, middle);
    const int right = build(values, middle + 1, end);
    m_nodes[node].left = left;
    m_nodes[node].right = right;
    refresh(node);
    return node;
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::release(int node)
{
    if (node == 0)
        return;
    release(m_nodes[node].left);
    release(m_nodes[node].right);
    m_free.push_back(node);
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::refresh(int node)
{
    Node &here = m_nodes[node];
    const Node &left = m_nodes[here.left];
    const Node &right = m_nodes[here.right];
    here.count = left.count + 1 + right.count;
    here.sum = left.sum + Sum(here.own) + right.sum;
}

template<typename Value, typename Sum>
void SumTree<Value, Sum>::refresh_below(int node)
{
    if (node == 0)
        return;
    refresh_below(m_nodes[node].left);
    refresh_below(m_nodes[node].right);
    refresh(node);
}

/// The first `index` values below a node, and the others.
template<typename Value, typename Sum>
std::pair<int, int> SumTree<Value, Sum>::split(int node, int index)
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

template<typename Value, typename Sum>
int SumTree<Value, Sum>::join(int left, int right)
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
