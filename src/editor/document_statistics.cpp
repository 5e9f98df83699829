// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/document_statistics.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace my_classes {

namespace {

constexpr int k_first_capacity = 64;

/// The counts of a paragraph with the separator behind it.
TextCounts counts_of_block(const QTextBlock &block)
{
    TextCounts counts = count_text(block.text());
    ++counts.characters;
    ++counts.code_units;
    return counts;
}

} // namespace

DocumentStatistics::DocumentStatistics(QTextDocument *document)
    : m_document(document)
{
    recount_everything();
    connect(document, &QTextDocument::contentsChange, this, &DocumentStatistics::update);
    connect(document, &QTextDocument::contentsChanged, this, &DocumentStatistics::finish);
}

TextCounts DocumentStatistics::of_document()
{
    // A change made from inside a change notification is not notified.
    if (!is_current())
        recount_everything();
    TextCounts counts = m_tree[1];
    --counts.characters; // the last paragraph has no separator
    --counts.code_units;
    return counts;
}

TextCounts DocumentStatistics::of_selection(const QTextCursor &cursor)
{
    if (!is_current())
        recount_everything();
    const int start = cursor.selectionStart();
    const int end = cursor.selectionEnd();
    const QTextBlock first = m_document->findBlock(start);
    const QTextBlock last = m_document->findBlock(end);
    if (first == last)
        return count_text(QStringView(first.text()).mid(start - first.position(), end - start));
    // The selected text of table cells comes without white space between them: no sum of paragraphs.
    if (cursor.hasComplexSelection() || m_document->rootFrame()->childFrames().size() > 0)
        return count_text(cursor.selectedText());

    TextCounts head = count_text(QStringView(first.text()).mid(start - first.position()));
    ++head.characters;
    ++head.code_units;
    const TextCounts middle = of_blocks(first.blockNumber() + 1, last.blockNumber());
    const TextCounts tail = count_text(QStringView(last.text()).left(end - last.position()));
    return joined(joined(head, middle), tail);
}

void DocumentStatistics::update(int position, int removed, int added)
{
    Q_UNUSED(removed);
    m_is_told = true;
    if (added > m_document->characterCount() / 2) {
        // A new text is counted when asked for, after the layout has been made: then that lies together in memory.
        m_block_count = 0;
        return;
    }
    const int end = std::min(position + added, m_document->characterCount() - 1);
    QTextBlock block = m_document->findBlock(position);
    const int first = block.blockNumber();
    const int new_count = m_document->findBlock(end).blockNumber() - first + 1;
    const int old_count = new_count + m_block_count - m_document->blockCount();
    if (!block.isValid() || new_count < 1 || old_count < 1 || first + old_count > m_block_count) {
        recount_everything();
        return;
    }
    if (old_count != new_count)
        resize_leaves(first, old_count, new_count);
    for (int i = first; i < first + new_count; ++i, block = block.next())
        m_tree[m_capacity + i] = counts_of_block(block);
    refresh_parents(first, old_count == new_count ? first + new_count - 1 : m_capacity - 1);
}

// One notification of what changes, one of the end; an edit made in the first has an end only.
void DocumentStatistics::finish()
{
    if (std::exchange(m_is_told, false))
        return;
    m_block_count = 0; // not current
    Q_EMIT corrected();
}

void DocumentStatistics::recount_everything()
{
    m_block_count = m_document->blockCount();
    m_capacity = k_first_capacity;
    while (m_capacity < m_block_count)
        m_capacity *= 2;
    m_tree.assign(2 * static_cast<size_t>(m_capacity), TextCounts());
    int i = m_capacity;
    for (QTextBlock block = m_document->firstBlock(); block.isValid(); block = block.next())
        m_tree[i++] = counts_of_block(block);
    refresh_parents(0, m_block_count - 1);
}

bool DocumentStatistics::is_current() const
{
    return m_tree[1].code_units == m_document->characterCount() && m_block_count == m_document->blockCount();
}

void DocumentStatistics::resize_leaves(int first, int old_count, int new_count)
{
    std::vector<TextCounts> leaves(m_tree.begin() + m_capacity, m_tree.begin() + m_capacity + m_block_count);
    const auto changed = leaves.begin() + first;
    if (new_count > old_count)
        leaves.insert(changed + old_count, new_count - old_count, TextCounts());
    else
        leaves.erase(changed + new_count, changed + old_count);
    m_block_count = static_cast<int>(leaves.size());
    if (m_block_count > m_capacity) {
        while (m_capacity < m_block_count)
            m_capacity *= 2;
        m_tree.assign(2 * static_cast<size_t>(m_capacity), TextCounts());
    }
    std::fill(std::copy(leaves.begin(), leaves.end(), m_tree.begin() + m_capacity), m_tree.end(), TextCounts());
}

void DocumentStatistics::refresh_parents(int first, int last)
{
    for (int left = (m_capacity + first) / 2, right = (m_capacity + last) / 2; left > 0; left /= 2, right /= 2) {
        for (int i = left; i <= right; ++i)
            m_tree[i] = joined(m_tree[2 * i], m_tree[2 * i + 1]);
    }
}

TextCounts DocumentStatistics::of_blocks(int first, int end) const
{
    TextCounts from_left;
    TextCounts from_right;
    for (int left = m_capacity + first, right = m_capacity + end; left < right; left /= 2, right /= 2) {
        if (left % 2 == 1)
            from_left = joined(from_left, m_tree[left++]);
        if (right % 2 == 1)
            from_right = joined(m_tree[--right], from_right);
    }
    return joined(from_left, from_right);
}

} // namespace my_classes
