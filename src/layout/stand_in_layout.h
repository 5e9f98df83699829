// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/object_handlers.h"
#include "layout/paragraph_lines.h"

#include <QtCore/QRectF>
#include <QtGui/QAbstractTextDocumentLayout>

#include <memory>

namespace my_classes {

class ForwardedObjects;
class StandIn;

/// For documents that need Qt's own layout, and have line heights that it does not know: it is Qt's own, of a copy of
/// the document.
class StandInLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT
    // QTextEdit knows both by these names. They tell nobody of changes:
    Q_PROPERTY(int cursorWidth READ cursor_width WRITE set_cursor_width) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(bool contentHasAlignment READ has_alignment)              // clazy:exclude=qproperty-without-notify

public:
    explicit StandInLayout(QTextDocument *document);
    ~StandInLayout() override;

    void draw(QPainter *painter, const PaintContext &context) override;
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override;
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame *frame) const override;
    QRectF blockBoundingRect(const QTextBlock &block) const override;

    /// Whether a change is being taken over, and the layout must not be replaced.
    bool is_changing() const { return m_is_changing; }
    /// Has to be told, unlike a change of the text.
    void paint_device_changed();

protected:
    void documentChanged(int from, int removed, int added) override;
    void resizeInlineObject(QTextInlineObject item, int position, const QTextFormat &format) override;

private:
    bool has_alignment() const { return true; }
    int cursor_width() const { return m_cursor_width; }
    void set_cursor_width(int pixels);
    bool is_current() const;
    QAbstractTextDocumentLayout *stand_in_layout() const;
    void make_stand_in();
    void note_update(const QRectF &rectangle);
    void announce();

    QtPictures m_pictures;
    std::unique_ptr<StandIn> m_stand_in;
    ForwardedObjects *m_objects = nullptr; // of the stand-in
    Page m_page;
    QRectF m_updated; // while a change is taken over
    QSizeF m_announced_size;
    int m_revision = -1; // of the document, that the stand-in is like
    int m_cursor_width = 1;
    bool m_is_changing = false;
};

} // namespace my_classes
