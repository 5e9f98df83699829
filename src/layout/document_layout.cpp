// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/document_layout.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace my_classes {

using namespace std::chrono_literals;

namespace {

constexpr int k_few_paragraphs = 8;        // are laid out at once when they change
constexpr int k_many_cached = 100;         // paragraphs whose glyphs are kept
constexpr int k_few_of = 8;                // one in so many: it is worth while to look for them
constexpr int k_sample = 24;               // paragraphs by which all are estimated
constexpr int k_most_seen = 50;            // by which all others are scaled
constexpr qreal k_endless = 1'000'000'000; // pixels
constexpr QRectF k_nowhere(-2 * k_endless, -2 * k_endless, 1, 1);
constexpr auto k_quiet = 250ms;  // before what is not seen is measured
constexpr auto k_slice = 1500us; // a longer one is felt between two keys

/// Whether what Qt shows does not depend on whether it has just shaped the text: it makes soft hyphens visible where a
/// line ends at them, and draws the cursor as high as the letter before, until it forgets.
bool is_shown_alike(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) {
        return c == QChar(QChar::SoftHyphen) || c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    });
}

/// Of what is drawn again and again.
void keep_glyphs(const QTextBlock &block)
{
    QTextLayout *layout = block.layout();
    layout->setCacheEnabled(is_shown_alike(block.text()) && is_shown_alike(layout->preeditAreaText()));
}

} // namespace

DocumentLayout::DocumentLayout(QTextDocument *document, std::function<int()> columns)
    : QAbstractTextDocumentLayout(document)
    , m_columns(std::move(columns))
    , m_pictures(this)
{
    m_measuring.setSingleShot(true);
    m_announcing.setSingleShot(true);
    connect(&m_measuring, &QTimer::timeout, this, &DocumentLayout::work_in_quiet);
    connect(&m_announcing, &QTimer::timeout, this, &DocumentLayout::announce_size);
}

Page DocumentLayout::present_page() const
{
    Page page = Page::of(document(), paintDevice());
    page.columns = m_columns();
    return page;
}

/// Not inside of edits, when paragraphs have come or gone that are not notified yet.
bool DocumentLayout::is_current() const
{
    return m_heights.count() == document()->blockCount();
}

QSizeF DocumentLayout::documentSize() const
{
    const Units width = std::max(m_page.width, m_page.left + m_heights.width() + m_page.right);
    return {to_pixels(width), to_pixels(m_page.top + m_heights.total() + m_page.bottom)};
}

QRectF DocumentLayout::frameBoundingRect(QTextFrame *frame) const
{
    return frame == document()->rootFrame() ? QRectF(QPointF(0, 0), documentSize()) : QRectF();
}

QRectF DocumentLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!block.isValid() || block.document() != document() || !block.isVisible())
        return {};
    const int index = block.blockNumber();
    if (is_current()) {
        measure(index, block);
    } else if (block.layout()->lineCount() == 0) {
        lay_out_lines(block, m_page);
        m_has_stray_lines = true;
    }
    return rectangle_of(block, top_of(index) + m_heights.extent(index).gap);
}

/// Where the paragraph's lines are, which it is told here: places further down change with every edit.
QRectF DocumentLayout::rectangle_of(const QTextBlock &block, Units top) const
{
    QTextLayout *layout = block.layout();
    layout->setPosition(QPointF(to_pixels(m_page.left), to_pixels(top)));
    QRectF rectangle = layout->boundingRect().translated(layout->position());
    rectangle.moveTopLeft(layout->position()); // as Qt has it, wherever the first line is
    return rectangle;
}

ParagraphExtent DocumentLayout::lay_out(const QTextBlock &block) const
{
    ParagraphExtent extent;
    extent.is_measured = true;
    if (!block.isVisible())
        return extent;
    if (block.layout()->cacheEnabled())
        keep_glyphs(block); // if it still may
    extent = lay_out_lines(block, m_page);
    m_overhang = std::max(m_overhang, overhang(block, extent.height - extent.gap));
    return extent;
}

void DocumentLayout::measure(int index, const QTextBlock &block) const
{
    const ParagraphExtent old = m_heights.extent(index);
    if (old.is_measured && (block.layout()->lineCount() > 0 || !block.isVisible()))
        return;
    const Units bottom = top_of(index) + old.height;
    const ParagraphExtent extent = lay_out(block);
    m_heights.set_extent(index, extent);
    if (extent.height != old.height)
        Q_EMIT const_cast<DocumentLayout *>(this)->corrected(bottom, extent.height - old.height);
    if (documentSize() != m_announced_size && !m_announcing.isActive())
        m_announcing.start();
}

void DocumentLayout::prepare_between(qreal top, qreal bottom)
{
    if (!is_current())
        return;
    const int first_before = m_first_seen;
    m_first_seen = m_heights.at(to_units(top) - m_page.top - m_overhang);
    const bool is_near = std::abs(m_first_seen - first_before) <= m_last_seen - first_before;
    m_last_seen = m_first_seen;
    QTextBlock block = document()->findBlockByNumber(m_first_seen);
    Units end = top_of(m_first_seen);
    for (int index = m_first_seen; block.isValid(); block = block.next(), ++index) {
        if (!m_heights.extent(index).is_cached && (is_near || block.layout()->lineCount() == 0))
            keep_glyphs(block); // after a jump they may be drawn once, and would only take room
        measure(index, block);
        note_cached(index, block.layout()->cacheEnabled());
        m_last_seen = index;
        end += m_heights.extent(index).height;
        if (end >= to_units(bottom) + m_overhang)
            break;
    }
    forget_glyphs();
    if (m_first_seen != first_before) // the person scrolls
        put_off_measuring();
}

void DocumentLayout::note_cached(int index, bool cached)
{
    ParagraphExtent extent = m_heights.extent(index);
    if (extent.is_cached == cached)
        return;
    extent.is_cached = cached;
    m_heights.set_extent(index, extent);
}

qreal DocumentLayout::first_measured_top(qreal top, qreal bottom) const
{
    int index = m_heights.at(to_units(top) - m_page.top);
    for (; index < m_heights.count() && top_of(index) < to_units(bottom); ++index) {
        if (m_heights.extent(index).is_measured)
            return std::max(top, to_pixels(top_of(index)));
    }
    return top;
}

void DocumentLayout::put_off_measuring()
{
    if (m_heights.unmeasured_count() > 0)
        m_measuring.start(k_quiet);
}

void DocumentLayout::work_in_quiet()
{
    if (!is_current() || !document()->isLayoutEnabled())
        return;
    if (!measure_everything(QDeadlineTimer(k_slice)))
        m_measuring.start(0ms);
}

/// Glyphs take several times as much memory as lines: only what is near keeps them.
void DocumentLayout::forget_glyphs()
{
    const int kept = m_last_seen - m_first_seen + 1; // before and behind them, too
    if (m_heights.cached_count() <= std::max(k_many_cached, 4 * kept))
        return;
    QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&nothing);
    for (int index = m_heights.next_cached(0); index >= 0; index = m_heights.next_cached(index + 1)) {
        if (index >= m_first_seen - kept && index <= m_last_seen + kept) {
            index = m_last_seen + kept;
            continue;
        }
        QTextLayout *layout = document()->findBlockByNumber(index).layout();
        layout->setCacheEnabled(false);
        layout->draw(&painter, QPointF(0, 0), {}, k_nowhere); // lets go of them at its end
        note_cached(index, false);
    }
}

/// False if time is over before.
bool DocumentLayout::measure_everything(const QDeadlineTimer &end)
{
    int index = m_heights.next_unmeasured(0);
    QTextBlock block = document()->findBlockByNumber(index);
    while (index >= 0 && !end.hasExpired()) {
        measure(index, block);
        const int next = m_heights.next_unmeasured(index + 1);
        block = next == index + 1 ? block.next() : document()->findBlockByNumber(next);
        index = next;
    }
    return index < 0;
}

void DocumentLayout::announce_size()
{
    m_announcing.stop();
    const QSizeF size = documentSize();
    if (size == m_announced_size)
        return;
    m_announced_size = size;
    Q_EMIT documentSizeChanged(size);
}

void DocumentLayout::documentChanged(int from, int removed, int added)
{
    const QScopedValueRollback<bool> busy(m_is_changing, true);
    const Page page = present_page();
    if (page != m_page || !update_paragraphs(from, added)) {
        const bool is_alike = from == 0 && removed == 0 && page.breaks_lines() == m_page.breaks_lines();
        m_page = page;
        estimate_everything(is_alike);
    }
    put_off_measuring();
    announce_size();
}

/// Of the same text as before with lines that end for the same reason, or of any.
void DocumentLayout::estimate_everything(bool is_alike)
{
    drop_lines();
    m_overhang = 0;
    m_estimate = HeightEstimate(m_page);
    if (!is_alike || !is_current() || !scale_heights()) {
        if (document()->isLayoutEnabled())
            m_estimate.sample(document(), m_page, k_sample);
        m_heights.replace(0, m_heights.count(), estimates(document()->begin(), document()->blockCount()));
    }
    measure_widest();
    Q_EMIT estimated();
    Q_EMIT update();
}

/// By as much as the paragraphs that the person sees have grown, which have to be laid out anyway. False if they do not
/// tell.
bool DocumentLayout::scale_heights()
{
    std::vector<std::pair<int, ParagraphExtent>> seen;
    Units before = 0;
    Units now = 0;
    QTextBlock block = document()->findBlockByNumber(m_first_seen);
    const int end = document()->isLayoutEnabled() ? std::min(m_last_seen, m_first_seen + k_most_seen) : -1;
    for (int index = m_first_seen; block.isValid() && index <= end; ++index, block = block.next()) {
        const ParagraphExtent old = m_heights.extent(index);
        const ParagraphExtent extent = lay_out(block);
        m_estimate.learn(block, extent);
        seen.emplace_back(index, extent);
        before += old.height - old.gap;
        now += extent.height - extent.gap;
    }
    if (before == 0 || now == 0)
        return false;
    m_heights.estimate_from_present(static_cast<double>(now) / static_cast<double>(before), !m_page.breaks_lines());
    for (const auto &[index, extent] : seen)
        m_heights.set_extent(index, extent);
    return true;
}

/// Where lines are as long as their text: so that the document's width hardly changes later.
void DocumentLayout::measure_widest()
{
    if (m_page.breaks_lines() || !document()->isLayoutEnabled())
        return;
    for (int i = 0; i < k_few_paragraphs; ++i) {
        const int index = m_heights.widest();
        if (index < 0 || m_heights.extent(index).is_measured)
            return;
        lay_out_now(index, 1);
    }
}

/// QTextCursor would go on using lines that are no longer right.
void DocumentLayout::drop_lines()
{
    const bool are_few = is_current() && m_heights.with_lines_count() < m_heights.count() / k_few_of;
    if (m_has_stray_lines || !are_few) {
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            block.clearLayout();
    } else {
        for (int i = m_heights.next_with_lines(0); i >= 0; i = m_heights.next_with_lines(i + 1))
            document()->findBlockByNumber(i).layout()->clearLayout();
    }
    m_has_stray_lines = false;
}

std::vector<ParagraphExtent> DocumentLayout::estimates(const QTextBlock &first, int count) const
{
    std::vector<ParagraphExtent> extents;
    extents.reserve(count);
    for (QTextBlock block = first; count > 0; block = block.next(), --count)
        extents.push_back(m_estimate.of(block));
    return extents;
}

/// Takes over a change between two positions; false if the paragraphs cannot be told.
bool DocumentLayout::update_paragraphs(int from, int added)
{
    const QTextBlock first = document()->findBlock(from);
    const QTextBlock last = document()->findBlock(std::min(from + added, document()->characterCount() - 1));
    if (!first.isValid() || !last.isValid())
        return false;
    const int index = first.blockNumber();
    const int count = last.blockNumber() - index + 1;
    const int old_count = count + m_heights.count() - document()->blockCount();
    if (count < 1 || old_count < 1 || index + old_count > m_heights.count())
        return false;

    std::vector<ParagraphExtent> old = m_heights.extents(index, old_count);
    const Units old_total = m_heights.total();
    QTextBlock block = first;
    for (int i = 0; i < count; ++i, block = block.next()) {
        if (old_count != count || old[i].has_lines || m_has_stray_lines)
            block.clearLayout(); // QTextCursor would go on using the lines
        if (old_count == count && !block.isVisible())
            old[i].height = old[i].gap = old[i].width = 0;
    }
    if (old_count == count) {
        for (ParagraphExtent &extent : old)
            extent.is_measured = extent.has_lines = false;
        m_heights.replace(index, count, old);
    } else {
        m_heights.replace(index, old_count, estimates(first, count));
    }
    if (count <= k_few_paragraphs && document()->isLayoutEnabled())
        lay_out_now(index, count);
    refresh_gap(index + count);
    measure_widest();

    const qreal top = to_pixels(top_of(index) - m_overhang);
    const bool moved = m_heights.total() != old_total;
    const qreal bottom = moved ? k_endless : to_pixels(top_of(index + count) + m_overhang);
    Q_EMIT update(QRectF(0, top, k_endless, bottom - top));
    return true;
}

void DocumentLayout::lay_out_now(int first, int count)
{
    QTextBlock block = document()->findBlockByNumber(first);
    for (int i = first; i < first + count; ++i, block = block.next())
        m_heights.set_extent(i, lay_out(block));
}

/// The gap above a paragraph depends on the one before.
void DocumentLayout::refresh_gap(int index)
{
    if (index >= m_heights.count() || !m_heights.extent(index).is_measured)
        return;
    const QTextBlock block = document()->findBlockByNumber(index);
    if (!block.isVisible())
        return;
    ParagraphExtent extent = m_heights.extent(index);
    const auto gap = static_cast<qint32>(gap_above(block, m_page));
    extent.height += gap - extent.gap;
    extent.gap = gap;
    m_heights.set_extent(index, extent);
}

void DocumentLayout::resizeInlineObject(QTextInlineObject item, int position, const QTextFormat &format)
{
    QAbstractTextDocumentLayout::resizeInlineObject(item, position, format);
    align_in_the_middle(item, format, this);
}

} // namespace my_classes
