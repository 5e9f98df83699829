// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_area.h"

#include "editor/list_levels.h"
#include "editor/pasted_pictures.h"
#include "editor/table_cells.h"
#include "editor/table_lines.h"
#include "layout/still_view.h"

#include <my_classes/custom_text_editor.h>

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtCore/QtMath>
#include <QtGui/QPixmap>
#include <QtGui/QTextFrame>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

namespace my_classes {

namespace {
constexpr int k_page_margin = 50;              // pixels
constexpr int k_overshoot = 2;                 // pixels
constexpr QSize k_largest_minimum(600, 300);   // pixels
constexpr qint64 k_largest_file = 100'000'000; // bytes
constexpr QLatin1StringView k_style("QTextEdit { padding: 50px; border: 1px solid lightgray; }");

/// Whether reading the file comes to an end: a device may not, a pipe may not even begin. Neither has a size.
bool is_readable_in_full(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0 && file.size() <= k_largest_file;
}
} // namespace

TextArea::TextArea(CustomTextEditor *editor)
    : QTextEdit(editor)
    , m_editor(editor)
    , m_still_view(new StillView(this)) // typing costs the same in a long text
{
    setStyleSheet(k_style);
    setViewportMargins(k_page_margin, k_page_margin, k_page_margin, k_page_margin);
    // Qt's line breaking can let an underlined word overshoot its line by a fraction of a pixel. That is nothing to
    // scroll to, and a second scroll bar makes every repaint dearer.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int maximum) { hide_overshoot(maximum); });
    connect(this, &QTextEdit::selectionChanged, this, &TextArea::tell_of_caret);
}

/// Selecting all moves the caret, too, of which Qt does not tell.
void TextArea::tell_of_caret()
{
    const QTextCursor cursor = textCursor();
    if (cursor.anchor() == 0 && cursor.position() == document()->characterCount() - 1)
        Q_EMIT cursorPositionChanged();
}

/// Leaves a policy of the host's alone.
void TextArea::hide_overshoot(int maximum)
{
    const bool overshoot = maximum > 0 && maximum <= k_overshoot;
    const auto ours = m_hides_overshoot ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
    if (overshoot == m_hides_overshoot || horizontalScrollBarPolicy() != ours)
        return;
    m_hides_overshoot = overshoot;
    setHorizontalScrollBarPolicy(overshoot ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

QSize TextArea::minimumSizeHint() const
{
    const QFontMetrics metrics(m_editor ? m_editor->editor_font : font(), this);
    const int margin = qCeil(2 * document()->documentMargin());
    const QSize text(20 * metrics.averageCharWidth() + verticalScrollBar()->sizeHint().width(),
                     3 * metrics.lineSpacing());
    return text.boundedTo(k_largest_minimum)
        .grownBy(QMargins(0, 0, margin, margin))
        .grownBy(contentsMargins() + viewportMargins());
}

/// Scrolling moves what is shown and paints only what comes into view where the area below is filled. A style sheet
/// switches that off, since it may draw there: ours does not, but others that reach here may.
void TextArea::fill_background()
{
    if (!qApp->styleSheet().isEmpty() || styleSheet() != k_style)
        return;
    for (const QWidget *parent = parentWidget(); parent; parent = parent->parentWidget()) {
        if (!parent->styleSheet().isEmpty())
            return;
    }
    const QBrush base = palette().base();
    viewport()->setAutoFillBackground(base.style() == Qt::SolidPattern && base.isOpaque());
}

void TextArea::scroll_by_wheel(QWheelEvent *event)
{
    QTextEdit::wheelEvent(event);
}

/// Where Qt will look: a relative name counts from the address of the document.
QString TextArea::local_path(const QUrl &name) const
{
    if (!name.isRelative())
        return name.toLocalFile();
    const QUrl address(document()->metaInformation(QTextDocument::DocumentUrl));
    if (!address.isRelative())
        return address.resolved(name).toLocalFile();
    const QFileInfo file(address.path());
    return !address.isEmpty() && file.exists() ? file.absolutePath() + u'/' + name.path() : name.path();
}

QVariant TextArea::loadResource(int type, const QUrl &name)
{
    const QString path = local_path(name);
    if (path.isEmpty() || is_readable_in_full(path))
        return QTextEdit::loadResource(type, name);
    // Not nothing: Qt would open the file itself.
    if (type == QTextDocument::ImageResource)
        return QPixmap(QStringLiteral(":/qt-project.org/styles/commonstyle/images/file-16.png"));
    return QByteArray();
}

bool TextArea::event(QEvent *event)
{
    // Over the margins the wheel reaches the frame, not the viewport, and QAbstractScrollArea drops it there.
    if (event->type() == QEvent::Wheel && m_editor) {
        m_editor->wheel_event(static_cast<QWheelEvent *>(event));
        return event->isAccepted();
    }
    const QPointer<TextArea> here(this);
    const bool is_taken = QTextEdit::event(event);
    if (here)
        fill_background_after(event);
    return is_taken;
}

bool TextArea::viewportEvent(QEvent *event)
{
    const QPointer<TextArea> here(this);
    const bool is_taken = QTextEdit::viewportEvent(event);
    if (here)
        fill_background_after(event);
    return is_taken;
}

void TextArea::fill_background_after(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        fill_background();
        break;
    default:
        break;
    }
}

void TextArea::keyPressEvent(QKeyEvent *event)
{
    const int step = event->key() == Qt::Key_Tab ? 1 : event->key() == Qt::Key_Backtab ? -1 : 0;
    if (step != 0 && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) && move_by_tab(step)) {
        event->accept();
        return;
    }
    // Tab writes a tab, so QTextEdit keeps both directions; Shift+Tab is of no use in the text.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): as said
    if (step < 0 && QAbstractScrollArea::focusNextPrevChild(false)) {
        event->accept();
        return;
    }
    QTextCursor cursor = textCursor();
    const bool has_tables = !document()->rootFrame()->childFrames().isEmpty();
    if (!event->matches(QKeySequence::InsertParagraphSeparator) || isReadOnly() || !cursor.hasSelection() ||
        !has_tables)
        return QTextEdit::keyPressEvent(event);
    // Qt does not survive undoing that a paragraph took the place of a table, unless that was removed before.
    const QPointer<TextArea> here(this);
    event->accept();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    cursor.insertBlock();
    cursor.endEditBlock();
    if (here)
        ensureCursorVisible();
}

void TextArea::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    draw_readable_table_lines(this);
}

bool TextArea::move_by_tab(int step)
{
    if (isReadOnly() || tabChangesFocus())
        return false;
    if (textCursor().currentTable())
        return step > 0 ? move_to_next_cell(this) : move_to_previous_cell(this);
    return change_list_level(this, step);
}

// Data without any format, as from an empty X11 clipboard, ends QTextEdit in a crash.

bool TextArea::canInsertFromMimeData(const QMimeData *source) const
{
    if (!source || source->formats().isEmpty())
        return false;
    return (acceptRichText() && offers_pictures(source)) || QTextEdit::canInsertFromMimeData(source);
}

void TextArea::insertFromMimeData(const QMimeData *source)
{
    if (!source || source->formats().isEmpty() || isReadOnly())
        return;
    if (!acceptRichText() || !offers_pictures(source) || !insert_pictures(this, source))
        QTextEdit::insertFromMimeData(source);
}

void TextArea::scrollContentsBy(int dx, int)
{
    QTextEdit::scrollContentsBy(dx, m_still_view->take_distance());
}

void TextArea::wheelEvent(QWheelEvent *event)
{
    if (m_editor)
        m_editor->wheel_event(event);
}

} // namespace my_classes
