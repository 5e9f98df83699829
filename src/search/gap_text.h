// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace my_classes {

/// A text with a movable gap, so that edits near each other do not shift everything behind them.
class GapText
{
public:
    void set(const QString &text);
    qsizetype size() const { return m_buffer.size() - m_gap_size; }

    /// The whole text. Closes the gap.
    QString whole();
    /// The text from `position` on. Valid until the next call of any function that is not const.
    QStringView tail(qsizetype position);
    void replace(qsizetype position, qsizetype removed, QStringView added);

private:
    void move_gap(qsizetype position);

    QString m_buffer;
    qsizetype m_gap = 0;
    qsizetype m_gap_size = 0;
};

} // namespace my_classes
