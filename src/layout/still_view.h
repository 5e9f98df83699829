// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/document_layout.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QTextCursor>

QT_BEGIN_NAMESPACE
class QPaintDevice;
class QTextBlock;
class QTextDocument;
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

class LayoutSwitch;

/// Gives the document of a text area our layout, and keeps what is seen in its place while heights become known.
///
/// Follows the text area from one document to the next.
class StillView : public QObject
{
    Q_OBJECT

public:
    /// Owned by `area`.
    explicit StillView(QTextEdit *area);
    ~StillView() override;

    /// Takes over the document that the text area has now.
    void follow();

    /// What the view is painted on.
    QPaintDevice *paint_device() const { return m_device; }
    /// How many letters of mean width a line may hold; 0 if none are counted.
    int columns() const;
    void layout_replaced();
    /// By how many pixels the window's content has to move, for QAbstractScrollArea::scrollContentsBy(): what that is
    /// called with does not know of steps that were made silently.
    int take_distance();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A line and where it is in the window.
    struct Anchor
    {
        QTextCursor line; // follows edits
        int revision = -1;
        int value = 0; // of the scroll bar
        qreal offset = 0;
    };

    void leave_document();
    void listen();
    void prepare_painting();
    void measure_visible();
    void correct(Units bottom, Units change);
    void note_top();
    void restore_top();
    void restore_top_of_same_text();
    void scroll_silently(int value);
    qreal line_top(int position) const;

    QTextEdit *m_area;
    QPaintDevice *m_device; // known by its address when the text area is half gone
    QPointer<QTextDocument> m_document;
    QPointer<LayoutSwitch> m_switch;
    QPointer<DocumentLayout> m_layout;
    Anchor m_anchor;
    int m_shown = 0;    // the scroll bar's value for what is on the screen
    Units m_fixed = -1; // what is above moves; -1: what is above the window
    Units m_rest = 0;   // of corrections, below a pixel
};

} // namespace my_classes
