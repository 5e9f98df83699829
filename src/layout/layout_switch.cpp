// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/layout_switch.h"

#include "layout/document_layout.h"
#include "layout/kept_formats.h"
#include "layout/line_spacing.h"
#include "layout/object_handlers.h"
#include "layout/stand_in_layout.h"
#include "layout/still_view.h"

#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>

#include <algorithm>
#include <functional>

namespace my_classes {

using namespace std::chrono_literals;

namespace {

constexpr auto k_retry = 50ms;
constexpr auto k_pause = 200ms;

/// Pictures that came with HTML have a frame, too: an empty one.
bool is_table_or_float(const QTextFrame *frame)
{
    return frame->firstPosition() <= frame->lastPosition() ||
           frame->frameFormat().position() != QTextFrameFormat::InFlow;
}

bool has_decoration(const QTextFrameFormat &format)
{
    return format.border() > 0 || format.padding() > 0 || format.background().style() != Qt::NoBrush ||
           format.hasProperty(QTextFormat::FrameWidth) || format.hasProperty(QTextFormat::FrameHeight);
}

/// Or had, before an edit.
bool has_factor_line_heights(const QTextDocument *document)
{
    const QList<QTextFormat> formats = document->allFormats();
    return std::any_of(formats.cbegin(), formats.cend(), [](const QTextFormat &format) {
        return format.isBlockFormat() && format.intProperty(QTextFormat::LineHeightType) == k_factor_line_height;
    });
}

/// Neither ours nor one of the host's.
bool is_qt_layout(const QAbstractTextDocumentLayout *layout)
{
    return qstrcmp(layout->metaObject()->className(), "QTextDocumentLayout") == 0;
}

} // namespace

LayoutSwitch *LayoutSwitch::of(QTextDocument *document)
{
    auto *known = document->findChild<LayoutSwitch *>(QString(), Qt::FindDirectChildrenOnly);
    return known ? known : new LayoutSwitch(document);
}

LayoutSwitch::LayoutSwitch(QTextDocument *document)
    : QObject(document)
    , m_document(document)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(k_pause);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        m_edits = 0;
        settle();
    });
    connect(document, &QTextDocument::contentsChange, this, [this] {
        if (m_edits == 0 || (m_revision != m_document->revision() && !m_was_cleared))
            ++m_edits; // but not for the second step of a new text
        m_revision = m_document->revision();
        m_was_cleared = m_document->isEmpty();
    });
    connect(document, &QTextDocument::contentsChanged, this, &LayoutSwitch::end_edit);
}

/// An edit made inside contentsChange() is notified by contentsChanged() only: then it cannot be told which edit has
/// ended, and only time tells that all have.
void LayoutSwitch::end_edit()
{
    if (m_edits > 0 && m_document->revision() == m_revision)
        --m_edits;
    if (m_edits > 0)
        m_quiet.start();
    check();
}

void LayoutSwitch::add(StillView *view)
{
    m_views.append(view);
    settle();
}

void LayoutSwitch::remove(StillView *view, bool keep)
{
    m_views.removeOne(view);
    if (keep)
        return;
    QAbstractTextDocumentLayout *layout = m_document->documentLayout();
    if (layout->paintDevice() == view->paint_device()) // which goes
        layout->setPaintDevice(m_views.isEmpty() ? nullptr : m_views.last()->paint_device());
    if (auto *stand_in = qobject_cast<StandInLayout *>(layout))
        stand_in->paint_device_changed();
    if (!m_views.isEmpty()) {
        settle();
        return;
    }
    use(Layout::qt);
    delete this;
}

LayoutSwitch::Layout LayoutSwitch::wanted() const
{
    const QTextFrame *root = m_document->rootFrame();
    const QList<QTextFrame *> frames = root->childFrames();
    if (m_views.isEmpty())
        return Layout::qt;
    if (m_document->pageSize().height() > 0 || has_decoration(root->frameFormat()) ||
        std::any_of(frames.cbegin(), frames.cend(), is_table_or_float))
        return has_factor_line_heights(m_document) ? Layout::stand_in : Layout::qt;
    return Layout::own;
}

/// Of the view that came last.
int LayoutSwitch::columns() const
{
    return m_views.isEmpty() ? 0 : m_views.last()->columns();
}

LayoutSwitch::Layout LayoutSwitch::present() const
{
    const QAbstractTextDocumentLayout *layout = m_document->documentLayout();
    if (qobject_cast<const DocumentLayout *>(layout))
        return Layout::own;
    return qobject_cast<const StandInLayout *>(layout) ? Layout::stand_in : Layout::qt;
}

/// Ours know when they are at work; Qt's can be told to rest only when all edits have ended.
bool LayoutSwitch::is_possible() const
{
    const QAbstractTextDocumentLayout *layout = m_document->documentLayout();
    if (const auto *own = qobject_cast<const DocumentLayout *>(layout))
        return !own->is_changing();
    const auto *stand_in = qobject_cast<const StandInLayout *>(layout);
    return stand_in ? !stand_in->is_changing() : m_edits == 0;
}

void LayoutSwitch::check()
{
    if (present() != wanted()) // not at once: the layout may be the one that is at work
        QMetaObject::invokeMethod(this, &LayoutSwitch::settle, Qt::QueuedConnection);
}

void LayoutSwitch::settle()
{
    if (present() == wanted())
        return;
    if (is_possible())
        use(wanted());
    else
        QTimer::singleShot(k_retry, this, &LayoutSwitch::settle);
}

void LayoutSwitch::use(Layout wanted)
{
    if (present() == Layout::qt && !is_qt_layout(m_document->documentLayout()))
        return; // the host's
    if (wanted == Layout::own)
        replace_layout(new DocumentLayout(m_document, [this] { return columns(); }));
    else if (wanted == Layout::stand_in)
        replace_layout(new StandInLayout(m_document));
    else if (present() != Layout::qt)
        replace_layout(nullptr);
}

/// A null pointer stands for Qt's. A layout takes the paragraphs' formats with it, and knows the device, the width of
/// the cursor and the handlers of objects.
void LayoutSwitch::replace_layout(QAbstractTextDocumentLayout *layout)
{
    QAbstractTextDocumentLayout *old = m_document->documentLayout();
    QPaintDevice *device = old->paintDevice();
    const QVariant cursor_width = old->property("cursorWidth");
    ObjectHandlers handlers(m_document);
    const KeptFormats formats(m_document);
    m_document->setDocumentLayout(layout);
    QAbstractTextDocumentLayout *present = m_document->documentLayout();
    handlers.give_to(present);
    present->setPaintDevice(device);
    present->setProperty("cursorWidth", cursor_width);
    formats.give_back();
    m_document->markContentsDirty(0, m_document->characterCount());
    for (StillView *view : std::as_const(m_views))
        view->layout_replaced();
}

} // namespace my_classes
