// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/document_statistics.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>
#include <vector>

namespace my_classes {

namespace {

/// The counts of a paragraph with the separator behind it.
TextCounts counts_of_block(const QTextBlock &block)
{
    TextCounts counts = count_text(block.text());
    ++counts.characters;
    ++counts.code_units;
    return counts;
}

std::vector<TextCounts> counts_of_blocks(QTextBlock block, int count)
{
    std::vector<TextCounts> counts;
    counts.reserve(count);
    for (; count > 0; --count, block = block.next())
        counts.push_back(counts_of_block(block));
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
    TextCounts counts = m_paragraphs.total();
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
    const TextCounts middle = m_paragraphs.sum_between(first.blockNumber() + 1, last.blockNumber());
    const TextCounts tail = count_text(QStringView(last.text()).left(end - last.position()));
    return head + middle + tail;
}

void DocumentStatistics::update(int position, int removed, int added)
{
    m_is_told = true;
    if (!m_is_known)
        return;
    if (added > m_document->characterCount() / 2) {
        // A new text is counted when asked for, after the layout has been made: then that lies together in memory.
        m_is_known = false;
        if (removed != added && position + added < m_document->characterCount() - 1)
            Q_EMIT misreported(); // perhaps
        return;
    }
    const int end = std::min(position + added, m_document->characterCount() - 1);
    QTextBlock block = m_document->findBlock(position);
    const int first = block.blockNumber();
    const int new_count = m_document->findBlock(end).blockNumber() - first + 1;
    const int old_count = new_count + m_paragraphs.count() - m_document->blockCount();
    if (block.isValid() && new_count > 0 && old_count > 0 && first + old_count <= m_paragraphs.count()) {
        const std::vector<TextCounts> counts = counts_of_blocks(block, new_count);
        if (old_count == 1 && new_count == 1)
            m_paragraphs.set(first, counts.front());
        else
            m_paragraphs.replace(first, old_count, counts);
    }
    if (is_current())
        return;
    recount_everything();
    Q_EMIT misreported();
}

// One notification of what changes, one of the end; an edit made in the first has an end only.
void DocumentStatistics::finish()
{
    if (std::exchange(m_is_told, false))
        return;
    m_is_known = false;
    Q_EMIT corrected();
}

void DocumentStatistics::recount_everything()
{
    m_paragraphs.replace(0, m_paragraphs.count(), counts_of_blocks(m_document->firstBlock(), m_document->blockCount()));
    m_is_known = true;
}

bool DocumentStatistics::is_current() const
{
    return m_is_known && m_paragraphs.total().code_units == m_document->characterCount() &&
           m_paragraphs.count() == m_document->blockCount();
}

} // namespace my_classes
