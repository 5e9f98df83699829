// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/still_view.h"

#include "layout/layout_switch.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <cmath>
#include <utility>

namespace my_classes {

StillView::StillView(QTextEdit *area)
    : QObject(area)
    , m_area(area)
    , m_device(area->viewport())
{
    area->installEventFilter(this);
    area->viewport()->installEventFilter(this);
    connect(area, &QTextEdit::textChanged, this, &StillView::follow);
    follow();
}

StillView::~StillView()
{
    leave_document();
}

int StillView::columns() const
{
    return m_area->lineWrapMode() == QTextEdit::FixedColumnWidth ? m_area->lineWrapColumnOrWidth() : 0;
}

void StillView::follow()
{
    QTextDocument *document = m_area->document();
    if (document == m_document)
        return;
    leave_document();
    m_document = document;
    m_anchor = Anchor();
    connect(document, &QTextDocument::documentLayoutChanged, this, &StillView::listen);
    m_switch = LayoutSwitch::of(document);
    m_switch->add(this);
    listen();
}

void StillView::leave_document()
{
    if (!m_document)
        return;
    m_document->disconnect(this);
    bool goes_too = false;
    for (const QObject *parent = m_document->parent(); parent; parent = parent->parent())
        goes_too = goes_too || parent == m_area;
    if (m_switch)
        m_switch->remove(this, goes_too);
    m_document = nullptr;
}

void StillView::listen()
{
    auto *layout = qobject_cast<DocumentLayout *>(m_document->documentLayout());
    if (layout == m_layout)
        return;
    m_layout = layout;
    if (!layout)
        return;
    connect(layout, &DocumentLayout::corrected, this, &StillView::correct);
    connect(layout, &DocumentLayout::estimated, this, &StillView::restore_top_of_same_text);
}

bool StillView::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Paint:
        if (watched == m_area->viewport())
            prepare_painting();
        break;
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::Resize:
    case QEvent::Wheel:
        if (m_layout)
            m_layout->put_off_measuring();
        break;
    default:
        break;
    }
    return false;
}

void StillView::prepare_painting()
{
    follow();
    m_switch->settle();
    if (m_layout)
        measure_visible();
    note_top();
}

void StillView::measure_visible()
{
    const QScrollBar *bar = m_area->verticalScrollBar();
    const int height = m_area->viewport()->height();
    const bool is_at_end = bar->maximum() > 0 && bar->value() == bar->maximum();
    const int value = bar->value();
    const qreal fixed = is_at_end ? value + height : m_layout->first_measured_top(value, value + height);
    m_fixed = to_units(fixed);
    m_layout->prepare_between(value, value + height);
    m_fixed = -1;
    if (bar->value() != value) // the window has moved over others
        m_layout->prepare_between(bar->value(), bar->value() + height);
}

/// Moves the window along with what it shows.
void StillView::correct(Units bottom, Units change)
{
    QScrollBar *bar = m_area->verticalScrollBar();
    const Units fixed = m_fixed < 0 ? to_units(bar->value()) : m_fixed;
    if (bar->maximum() == 0 || bottom > fixed)
        return;
    if (m_fixed >= 0)
        m_fixed += change;
    m_rest += change;
    const Units pixels = m_rest >= 0 ? m_rest / 64 : -((63 - m_rest) / 64);
    m_rest -= pixels * 64;
    m_anchor.value += static_cast<int>(pixels);
    scroll_silently(bar->value() + static_cast<int>(pixels));
}

/// Nothing on the screen has to move.
void StillView::scroll_silently(int value)
{
    QScrollBar *bar = m_area->verticalScrollBar();
    const QSignalBlocker quiet(bar);
    bar->setMaximum(std::max(bar->maximum(), value));
    bar->setValue(value);
    m_shown = bar->value();
}

int StillView::take_distance()
{
    const int before = std::exchange(m_shown, m_area->verticalScrollBar()->value());
    return before - m_shown;
}

qreal StillView::line_top(int position) const
{
    const QTextBlock block = m_document->findBlock(position);
    const qreal top = m_document->documentLayout()->blockBoundingRect(block).top();
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    return line.isValid() ? top + line.y() - block.layout()->lineAt(0).y() : top;
}

/// Keeps the line at the top in mind until the person scrolls.
void StillView::note_top()
{
    const int value = m_area->verticalScrollBar()->value();
    if (!m_anchor.line.isNull() && m_anchor.value == value) {
        if (m_anchor.revision == m_document->revision())
            return;
        if (qFuzzyIsNull(line_top(m_anchor.line.position()) - value - m_anchor.offset)) { // a hit test may take long
            m_anchor.revision = m_document->revision();
            return;
        }
    }
    const int position = m_document->documentLayout()->hitTest(QPointF(0, value), Qt::FuzzyHit);
    m_anchor = {QTextCursor(m_document), m_document->revision(), value, 0};
    m_anchor.line.setPosition(std::max(0, position));
    m_anchor.offset = line_top(m_anchor.line.position()) - value;
}

void StillView::restore_top()
{
    m_rest = 0;
    if (m_anchor.line.isNull() || m_anchor.value <= 0)
        return;
    const qreal top = line_top(m_anchor.line.position()) - m_anchor.offset;
    m_anchor.value = std::max(0, static_cast<int>(std::lround(top)));
    scroll_silently(m_anchor.value);
}

/// Not where all the text is another: that is seen from its start.
void StillView::restore_top_of_same_text()
{
    if (m_anchor.revision == m_document->revision())
        restore_top();
}

void StillView::layout_replaced()
{
    listen();
    const bool is_unwrapped = m_area->lineWrapMode() == QTextEdit::NoWrap;
    if (m_layout && is_unwrapped && m_document->pageSize().width() <= 0) // Qt's takes none before some text is aligned
        m_document->setPageSize(QSizeF(m_area->viewport()->width(), -1));
    m_document->documentLayout()->documentSize(); // Qt's has not come far yet, and the window could not go further
    restore_top();
    m_area->viewport()->update();
}

} // namespace my_classes
