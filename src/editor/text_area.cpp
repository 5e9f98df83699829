// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_area.h"

#include <my_classes/custom_text_editor.h>

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QPixmap>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>

namespace my_classes {

namespace {
constexpr int k_page_margin = 50;              // pixels
constexpr int k_overshoot = 2;                 // pixels
constexpr qint64 k_largest_file = 100'000'000; // bytes

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
{
    setViewportMargins(k_page_margin, k_page_margin, k_page_margin, k_page_margin);
    // Qt's line breaking can let an underlined word overshoot its line by a fraction of a pixel. That is nothing to
    // scroll to, and a second scroll bar makes every repaint dearer.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int maximum) {
        const bool overshoot = maximum > 0 && maximum <= k_overshoot;
        setHorizontalScrollBarPolicy(overshoot ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    });
}

void TextArea::scroll_by_wheel(QWheelEvent *event)
{
    QTextEdit::wheelEvent(event);
}

QVariant TextArea::loadResource(int type, const QUrl &name)
{
    const QString path = name.isRelative() ? name.path() : name.toLocalFile();
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
    if (event->type() == QEvent::Wheel) {
        m_editor->wheel_event(static_cast<QWheelEvent *>(event));
        return event->isAccepted();
    }
    return QTextEdit::event(event);
}

void TextArea::keyPressEvent(QKeyEvent *event)
{
    // Tab writes a tab, so QTextEdit keeps both directions; Shift+Tab is of no use in the text.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): as said
    if (event->key() == Qt::Key_Backtab && QAbstractScrollArea::focusNextPrevChild(false)) {
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void TextArea::wheelEvent(QWheelEvent *event)
{
    m_editor->wheel_event(event);
}

} // namespace my_classes
