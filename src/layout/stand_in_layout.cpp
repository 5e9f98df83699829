// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/stand_in_layout.h"

#include "layout/copied_lines.h"
#include "layout/forwarded_objects.h"
#include "layout/stand_in.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QTextBlock>
#include <QtGui/QTextFrame>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <utility>

namespace my_classes {

namespace {

QTextCursor cursor_like(const QTextCursor &cursor, QTextDocument *document)
{
    QTextCursor copy(document);
    if (cursor.isNull() || std::max(cursor.position(), cursor.anchor()) >= document->characterCount())
        return copy;
    copy.setPosition(cursor.anchor());
    copy.setPosition(cursor.position(), QTextCursor::KeepAnchor);
    return copy;
}

} // namespace

StandInLayout::StandInLayout(QTextDocument *document)
    : QAbstractTextDocumentLayout(document)
    , m_pictures(this)
{
}

StandInLayout::~StandInLayout() = default;

/// Not inside of edits, that are not notified yet. One that begins with taking everything away tells of that at once.
bool StandInLayout::is_current() const
{
    return m_stand_in && m_revision == document()->revision() && m_stand_in->blockCount() == document()->blockCount() &&
           m_stand_in->characterCount() == document()->characterCount();
}

QAbstractTextDocumentLayout *StandInLayout::stand_in_layout() const
{
    return m_stand_in->documentLayout();
}

void StandInLayout::draw(QPainter *painter, const PaintContext &context)
{
    if (!is_current())
        return;
    PaintContext own = context;
    for (Selection &selection : own.selections)
        selection.cursor = cursor_like(selection.cursor, m_stand_in.get());
    stand_in_layout()->draw(painter, own);
}

int StandInLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const
{
    return is_current() ? stand_in_layout()->hitTest(point, accuracy) : -1;
}

int StandInLayout::pageCount() const
{
    return m_stand_in ? stand_in_layout()->pageCount() : 1;
}

QSizeF StandInLayout::documentSize() const
{
    return m_stand_in ? stand_in_layout()->documentSize() : QSizeF();
}

QRectF StandInLayout::frameBoundingRect(QTextFrame *frame) const
{
    if (!is_current())
        return {};
    QTextFrame *like = m_stand_in->rootFrame();
    if (frame->parentFrame()) {
        QTextCursor inside(m_stand_in.get());
        inside.setPosition(frame->firstPosition());
        like = inside.currentFrame();
    }
    return stand_in_layout()->frameBoundingRect(like);
}

QRectF StandInLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!is_current()) {
        if (block.isValid() && block.layout()->lineCount() == 0)
            lay_out_lines(block, m_page);
        return {};
    }
    const QTextBlock like = m_stand_in->findBlockByNumber(block.blockNumber());
    const QRectF rectangle = stand_in_layout()->blockBoundingRect(like);
    if (block.isValid())
        copy_lines(like.layout(), block.layout(), m_page.option.wrapMode());
    return rectangle;
}

void StandInLayout::set_cursor_width(int pixels)
{
    m_cursor_width = pixels;
    if (m_stand_in)
        stand_in_layout()->setProperty("cursorWidth", pixels);
}

void StandInLayout::paint_device_changed()
{
    if (m_stand_in)
        stand_in_layout()->setPaintDevice(paintDevice());
}

void StandInLayout::documentChanged(int from, int removed, int added)
{
    if (!document()->isLayoutEnabled())
        return;
    const QScopedValueRollback<bool> busy(m_is_changing, true);
    const bool is_same_text = is_current();
    m_revision = document()->revision();
    const Page page = Page::of(document(), paintDevice());
    const bool is_same_page = page == std::exchange(m_page, page);
    paint_device_changed();
    if (m_stand_in)
        m_objects->register_at(stand_in_layout()); // the host may have brought one
    if (!m_stand_in || (!is_same_text && !m_stand_in->take_over(from, removed, added)))
        make_stand_in();
    else if (!is_same_page || m_stand_in->pageSize() != document()->pageSize())
        m_stand_in->take_over_settings();
    if (is_same_text)
        m_stand_in->take_over_marks(from, added);
    const QTextBlock last = document()->findBlock(from + added);
    for (QTextBlock block = document()->findBlock(std::max(0, from)); block.isValid(); block = block.next()) {
        block.layout()->clearLayout(); // QTextCursor would go on using the lines
        if (block == last)
            break;
    }
    announce();
}

void StandInLayout::resizeInlineObject(QTextInlineObject item, int position, const QTextFormat &format)
{
    QAbstractTextDocumentLayout::resizeInlineObject(item, position, format);
    align_in_the_middle(item, format, this);
}

void StandInLayout::make_stand_in()
{
    if (m_stand_in)
        m_stand_in.release()->deleteLater(); // it may be the one that is at work
    m_stand_in = std::make_unique<StandIn>(document());
    QAbstractTextDocumentLayout *layout = stand_in_layout();
    m_objects = new ForwardedObjects(document(), layout);
    layout->setPaintDevice(paintDevice());
    layout->setProperty("cursorWidth", m_cursor_width);
    connect(layout, &QAbstractTextDocumentLayout::update, this, &StandInLayout::note_update);
    m_stand_in->markContentsDirty(0, m_stand_in->characterCount()); // objects have got their sizes
}

void StandInLayout::note_update(const QRectF &rectangle)
{
    m_updated |= rectangle;
    if (!m_is_changing)
        Q_EMIT update(std::exchange(m_updated, QRectF()));
}

void StandInLayout::announce()
{
    const QSizeF size = documentSize(); // and nothing is left to be laid out later
    Q_EMIT update(std::exchange(m_updated, QRectF()));
    if (size != std::exchange(m_announced_size, size))
        Q_EMIT documentSizeChanged(size);
}

} // namespace my_classes
