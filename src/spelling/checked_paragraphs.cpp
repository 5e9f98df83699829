// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/checked_paragraphs.h"

#include <algorithm>

namespace my_classes {

void CheckedParagraphs::reset(int count)
{
    const QStringList all = words();
    m_gone.unite({all.begin(), all.end()});
    m_occurrences.clear();
    m_paragraphs = QList<Paragraph>(count);
    m_all_checked_before = 0;
}

void CheckedParagraphs::uncheck_all()
{
    for (Paragraph &paragraph : m_paragraphs)
        paragraph.is_checked = false;
    m_all_checked_before = 0;
}

void CheckedParagraphs::uncheck(int paragraph)
{
    m_paragraphs[paragraph].is_checked = false;
    m_all_checked_before = std::min(m_all_checked_before, paragraph);
}

void CheckedParagraphs::replace(int first, int old_count, int new_count)
{
    // They keep their words until they are checked: mostly these stay.
    for (int i = first + new_count; i < first + old_count; ++i)
        forget_words(m_paragraphs.at(i).misspelled);
    if (new_count < old_count)
        m_paragraphs.remove(first + new_count, old_count - new_count);
    else if (new_count > old_count)
        m_paragraphs.insert(first + old_count, new_count - old_count, Paragraph());
    for (int i = first; i < first + std::min(old_count, new_count); ++i)
        m_paragraphs[i].is_checked = false;
    m_all_checked_before = std::min(m_all_checked_before, first);
}

int CheckedParagraphs::next_unchecked()
{
    const auto from = m_paragraphs.cbegin() + m_all_checked_before;
    const auto found = std::find_if(from, m_paragraphs.cend(), [](const Paragraph &one) { return !one.is_checked; });
    m_all_checked_before = static_cast<int>(found - m_paragraphs.cbegin());
    return found == m_paragraphs.cend() ? -1 : m_all_checked_before;
}

void CheckedParagraphs::set_misspelled(int paragraph, const QStringList &words)
{
    Paragraph &changed = m_paragraphs[paragraph];
    changed.is_checked = true;
    if (changed.misspelled == words)
        return;
    for (const QString &word : words)
        ++m_occurrences[word];
    forget_words(changed.misspelled);
    changed.misspelled = words;
}

QSet<QString> CheckedParagraphs::take_gone()
{
    QSet<QString> gone;
    gone.swap(m_gone);
    gone.removeIf([this](const QString &word) { return contain(word); });
    return gone;
}

void CheckedParagraphs::forget_words(const QStringList &words)
{
    for (const QString &word : words) {
        if (--m_occurrences[word] > 0)
            continue;
        m_occurrences.remove(word);
        m_gone.insert(word);
    }
}

} // namespace my_classes
