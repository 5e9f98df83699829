// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/gap_text.h"

#include <algorithm>

namespace my_classes {

void GapText::set(const QString &text)
{
    m_buffer = text;
    m_gap = 0;
    m_gap_size = 0;
}

QString GapText::whole()
{
    if (m_gap_size > 0)
        m_buffer.remove(m_gap, m_gap_size);
    m_gap_size = 0;
    return m_buffer;
}

QStringView GapText::tail(qsizetype position)
{
    if (position < m_gap)
        move_gap(position);
    return QStringView(m_buffer).mid(position + m_gap_size);
}

void GapText::replace(qsizetype position, qsizetype removed, QStringView added)
{
    move_gap(position);
    m_gap_size += removed;
    if (m_gap_size < added.size()) {
        const qsizetype more = added.size() + size() / 8 + 64;
        m_buffer.insert(m_gap, QString(more, QChar()));
        m_gap_size += more;
    }
    std::copy(added.begin(), added.end(), m_buffer.begin() + m_gap);
    m_gap += added.size();
    m_gap_size -= added.size();
}

void GapText::move_gap(qsizetype position)
{
    if (m_gap_size > 0) {
        QChar *text = m_buffer.data();
        if (position < m_gap)
            std::copy_backward(text + position, text + m_gap, text + m_gap + m_gap_size);
        else
            std::copy(text + m_gap + m_gap_size, text + position + m_gap_size, text + m_gap);
    }
    m_gap = position;
}

} // namespace my_classes
