// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/height_estimate.h"
#include "layout/object_handlers.h"
#include "layout/paragraph_heights.h"
#include "layout/paragraph_lines.h"

#include <QtCore/QTimer>
#include <QtGui/QAbstractTextDocumentLayout>

#include <chrono>
#include <functional>

QT_BEGIN_NAMESPACE
class QDeadlineTimer;
QT_END_NAMESPACE

namespace my_classes {

/// A document layout whose work does not grow with the text: only paragraphs that are seen or asked for get lines, the
/// heights of all others are estimates until the program has nothing better to do.
///
/// It looks like Qt's own layout, to the pixel. What it cannot show (see LayoutSwitch) is to be left to that one.
class DocumentLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT
    Q_PROPERTY(int cursorWidth MEMBER m_cursor_width)       // QTextEdit knows it by this name
    Q_PROPERTY(bool contentHasAlignment READ has_alignment) // and this one, clazy:exclude=qproperty-without-notify

public:
    /// `columns`: how many letters of mean width a line may hold, now; 0 for as many as there is room for.
    DocumentLayout(QTextDocument *document, std::function<int()> columns);

    void draw(QPainter *painter, const PaintContext &context) override;
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame *frame) const override;
    QRectF blockBoundingRect(const QTextBlock &block) const override;

    /// Makes what lies between two heights of the document ready to be seen, and their distance exact.
    void prepare_between(qreal top, qreal bottom);
    /// Where the first measured paragraph between two heights starts; `top` if there is none.
    qreal first_measured_top(qreal top, qreal bottom) const;
    /// Not called while the person does something: every call puts off the measuring of what is not seen.
    void put_off_measuring();
    /// Whether a change is being taken over, and the layout must not be replaced.
    bool is_changing() const { return m_is_changing; }
    /// Tells that the size has changed, where that could not be told at once.
    void announce_size();

Q_SIGNALS:
    /// An estimate was wrong: everything from `bottom` on, as it was, has moved by `change`.
    void corrected(my_classes::Units bottom, my_classes::Units change);
    /// All heights have changed.
    void estimated();

protected:
    void documentChanged(int from, int removed, int added) override;
    void resizeInlineObject(QTextInlineObject item, int position, const QTextFormat &format) override;

private:
    bool has_alignment() const { return true; }
    Page present_page() const;
    bool is_current() const;
    Units top_of(int index) const { return m_page.top + m_heights.top(index); }
    QRectF rectangle_of(const QTextBlock &block, Units top) const;
    QRectF lines_of(const QTextBlock &block) const;
    ParagraphExtent lay_out(const QTextBlock &block) const;
    void measure(int index, const QTextBlock &block) const;
    void estimate_everything(bool is_alike);
    bool scale_heights();
    void measure_widest();
    void drop_lines();
    std::vector<ParagraphExtent> estimates(const QTextBlock &first, int count) const;
    bool update_paragraphs(int from, int added);
    void lay_out_now(int first, int count);
    void refresh_gap(int index);
    void work_in_quiet();
    void note_cached(int index, bool cached);
    void forget_glyphs();
    bool measure_everything(const QDeadlineTimer &end);

    std::function<int()> m_columns;
    QtPictures m_pictures;
    // Heights become exact in calls that ask for something.
    mutable ParagraphHeights m_heights;
    mutable Units m_overhang = 0;
    mutable bool m_has_stray_lines = false; // made inside an edit, when no books are kept
    mutable QTimer m_announcing;
    Page m_page;
    HeightEstimate m_estimate;
    QSizeF m_announced_size;
    QTimer m_measuring;
    int m_first_seen = 0; // the paragraphs that were prepared last
    int m_last_seen = 0;
    int m_cursor_width = 1;
    bool m_is_changing = false;
};

} // namespace my_classes
