// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/writing_colours.h"

#include <QtCore/QEvent>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QTextEdit>

#include <limits>

namespace my_classes {

WritingColours::WritingColours(QTextEdit *area, const QWidget *surroundings)
    : QObject(area)
    , m_area(area)
    , m_surroundings(surroundings)
{
    wear();
    area->installEventFilter(this);
    area->viewport()->installEventFilter(this);
}

void WritingColours::wear()
{
    settle_base_of_host();
    QPalette colours = m_surroundings->palette();
    const QColor own = colours.color(QPalette::Window);
    colours.setColor(QPalette::Base, own);
    if (m_of_host) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            colours.setBrush(group, QPalette::Base, m_of_host->brush(group, QPalette::Base));
    }
    if (!m_own_bases.contains(own))
        m_own_bases.append(own);
    colours.setResolveMask(std::numeric_limits<QPalette::ResolveMask>::max());
    const QScopedValueRollback wearing(m_wearing, true);
    m_area->setPalette(colours);
    dress_parts();
}

bool WritingColours::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        m_polishing = watched == m_area; // the viewport's turn comes next
        break;
    case QEvent::Show:
        m_polishing = false;
        break;
    case QEvent::PaletteChange:
        if (!m_wearing)
            palette_changed(static_cast<QWidget *>(watched));
        break;
    case QEvent::StyleChange:
        if (watched == m_area) {
            m_unsettled.reset();
            wear();
        }
        break;
    default:
        break;
    }
    return false;
}

void WritingColours::palette_changed(const QWidget *part)
{
    if (m_polishing) {
        if (m_of_host || m_unsettled)
            wear();
        return;
    }
    settle_base_of_host();
    m_unsettled = part->palette();
    QMetaObject::invokeMethod(this, &WritingColours::settle, Qt::QueuedConnection);
    if (part == m_area)
        dress_parts();
}

/// Leaves alone what is back to our own: that may be the doing of a style sheet on its way.
void WritingColours::settle_base_of_host()
{
    if (m_unsettled && !is_own(*m_unsettled))
        settle();
}

void WritingColours::settle()
{
    if (!m_unsettled)
        return;
    const bool is_hosts = !is_own(*m_unsettled);
    const bool was_hosts = m_of_host.has_value();
    m_of_host = is_hosts ? m_unsettled : std::nullopt;
    m_unsettled.reset();
    if (was_hosts && !is_hosts)
        wear();
}

bool WritingColours::is_own(const QPalette &palette) const
{
    return m_own_bases.contains(palette.color(QPalette::Active, QPalette::Base));
}

void WritingColours::dress_parts()
{
    const QScopedValueRollback wearing(m_wearing, true);
    const auto parts = m_area->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setPalette(m_area->palette());
}

} // namespace my_classes
