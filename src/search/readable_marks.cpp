// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/readable_marks.h"

#include <QtCore/QEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

#include <algorithm>

namespace my_classes {

namespace {

constexpr int k_our_mark = QTextFormat::UserProperty + 0x6d63; // among the extra selections of others
constexpr int k_light = 128;

bool is_yellow(const QTextFormat &format)
{
    return format.background().style() != Qt::NoBrush && format.background().color() == QColor(Qt::yellow);
}

bool is_unreadable(const QTextCharFormat &format, const QColor &usual_colour)
{
    if (!is_yellow(format))
        return false;
    const bool has_own = format.hasProperty(QTextFormat::ForegroundBrush);
    return qGray((has_own ? format.foreground().color() : usual_colour).rgb()) >= k_light;
}

QTextEdit::ExtraSelection dark_letters(QTextDocument *document, int from, int until)
{
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(document);
    selection.cursor.setPosition(from);
    selection.cursor.setPosition(until, QTextCursor::KeepAnchor);
    selection.format.setForeground(Qt::black);
    selection.format.setProperty(k_our_mark, true);
    return selection;
}

bool is_same(const QTextEdit::ExtraSelection &a, const QTextEdit::ExtraSelection &b)
{
    return a.cursor == b.cursor && a.cursor.anchor() == b.cursor.anchor() && a.format == b.format;
}

} // namespace

void ReadableMarks::install(QTextEdit *text_area)
{
    if (!text_area->findChild<ReadableMarks *>(QString(), Qt::FindDirectChildrenOnly))
        new ReadableMarks(text_area);
}

ReadableMarks::ReadableMarks(QTextEdit *text_area)
    : QObject(text_area)
    , m_text_area(text_area)
{
    text_area->viewport()->installEventFilter(this);
    text_area->viewport()->update();
    connect(text_area, &QTextEdit::textChanged, this, &ReadableMarks::leave_unmarked);
}

/// Goes where nothing is yellow or can become it again by undoing.
void ReadableMarks::leave_unmarked()
{
    const QTextDocument *document = m_text_area->document();
    if (document->isUndoAvailable() || document->isRedoAvailable())
        return;
    const QList<QTextFormat> formats = document->allFormats();
    if (std::any_of(formats.begin(), formats.end(), is_yellow))
        return;
    update();
    delete this;
}

bool ReadableMarks::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) // whatever changes what is in sight ends in one
        update();
    return QObject::eventFilter(watched, event);
}

void ReadableMarks::update()
{
    const QList<QTextEdit::ExtraSelection> before = m_text_area->extraSelections();
    QList<QTextEdit::ExtraSelection> after = before;
    after.removeIf([](const auto &selection) { return selection.format.hasProperty(k_our_mark); });
    after += unreadable_in_sight();
    if (!std::equal(before.begin(), before.end(), after.begin(), after.end(), is_same))
        m_text_area->setExtraSelections(after);
}

QList<QTextEdit::ExtraSelection> ReadableMarks::unreadable_in_sight() const
{
    QList<QTextEdit::ExtraSelection> found;
    const QRect seen = m_text_area->viewport()->rect();
    const auto position_at = [this](const QPoint &point) { return m_text_area->cursorForPosition(point).position(); };
    const int from = std::min(position_at(seen.topLeft()), position_at(seen.topRight()));
    const int until = std::max(position_at(seen.bottomLeft()), position_at(seen.bottomRight()));
    const QColor usual_colour = m_text_area->palette().text().color();
    QTextDocument *document = m_text_area->document();
    for (QTextBlock block = document->findBlock(from); block.isValid() && block.position() <= until;
         block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment part = at.fragment();
            const bool is_seen = part.position() <= until && part.position() + part.length() >= from;
            if (is_seen && is_unreadable(part.charFormat(), usual_colour))
                found += dark_letters(document, part.position(), part.position() + part.length());
        }
    }
    return found;
}

} // namespace my_classes
