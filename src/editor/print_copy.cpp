// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/print_copy.h"

#include "editor/embedded_pictures.h"
#include "layout/document_copy.h"
#include "layout/line_spacing.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>
#include <QtGui/QPagedPaintDevice>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextList>
#include <QtGui/QTextTable>

#include <algorithm>
#include <cmath>
#include <utility>

namespace my_classes {

namespace {

constexpr double k_margin_inches = 2 / 2.54;

double screen_dpi()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96;
}

double margin_in_pixels()
{
    return std::floor(k_margin_inches * screen_dpi());
}

/// Dots of the device in a pixel of the screen.
double dots_per_pixel(const QPaintDevice &device)
{
    return device.logicalDpiY() / screen_dpi();
}

/// What the frame takes on both sides together, in dots.
double frame_sides(const QTextFrame *frame, double scale)
{
    const QTextFrameFormat format = frame->frameFormat();
    double sides = format.leftMargin() + format.rightMargin() + 2 * (format.border() + format.padding());
    if (const auto *table = qobject_cast<const QTextTable *>(frame)) {
        const QTextTableFormat table_format = table->format();
        sides += 2 * (table_format.cellSpacing() + table_format.cellPadding());
    }
    return sides * scale;
}

/// The same for above and below.
double frame_ends(const QTextFrame *frame, double scale)
{
    const QTextFrameFormat format = frame->frameFormat();
    return frame_sides(frame, scale) + (format.topMargin() + format.bottomMargin()) * scale;
}

/// Keeps pictures within the room that their page, or their part of a table, has for them.
class PrintedPictures : public EmbeddedPictures
{
public:
    using EmbeddedPictures::EmbeddedPictures;

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override
    {
        const QSizeF size = EmbeddedPictures::intrinsicSize(document, position, format);
        const QSizeF room = room_at(document, position);
        const double factor = std::min(room.width() / size.width(), room.height() / size.height());
        return factor < 1 ? size * factor : size;
    }

private:
    static QSizeF room_at(const QTextDocument *document, int position)
    {
        const QTextBlock block = document->findBlock(position);
        const QTextBlockFormat format = block.blockFormat();
        const QPaintDevice *device = document->documentLayout()->paintDevice();
        const double scale = dots_per_pixel(*device);
        const double margin = margin_in_pixels() * scale;
        const int indent = format.indent() + (block.textList() ? block.textList()->format().indent() : 0);
        QSizeF room = document->pageSize() - QSizeF(2 * margin, 2 * margin);
        QTextCursor cursor(block);
        for (const QTextFrame *frame = cursor.currentFrame(); frame->parentFrame(); frame = frame->parentFrame()) {
            room -= QSizeF(frame_sides(frame, scale), frame_ends(frame, scale));
            if (const auto *table = qobject_cast<const QTextTable *>(frame))
                room.setWidth(room.width() / std::max(1, table->columns()));
        }
        room.rwidth() -= format.leftMargin() + format.rightMargin() + std::max(0.0, format.textIndent());
        room.rwidth() -= indent * document->indentWidth() * scale;
        room.rheight() -= (format.topMargin() + format.bottomMargin()) * scale;
        room.rheight() -= QFontMetricsF(block.charFormat().font(), device).height(); // the line's depth
        if (format.lineHeightType() == QTextBlockFormat::ProportionalHeight)
            room.rheight() /= std::max(1.0, format.lineHeight() / 100);
        return room.expandedTo(QSizeF(1, 1));
    }
};

// Of these Qt takes pixels for dots, which are a tenth as large on paper.

QTextBlockFormat in_dots(QTextBlockFormat format, double scale)
{
    if (format.hasProperty(QTextFormat::BlockLeftMargin))
        format.setLeftMargin(format.leftMargin() * scale);
    if (format.hasProperty(QTextFormat::BlockRightMargin))
        format.setRightMargin(format.rightMargin() * scale);
    if (format.hasProperty(QTextFormat::TextIndent))
        format.setTextIndent(format.textIndent() * scale);
    return with_known_line_height(format);
}

double points(double pixels)
{
    return pixels * 72 / screen_dpi();
}

bool is_in_pixels(const QTextCharFormat &format)
{
    return format.hasProperty(QTextFormat::FontPixelSize) && !format.hasProperty(QTextFormat::FontPointSize);
}

QTextCharFormat in_points(QTextCharFormat format)
{
    const double size = points(format.intProperty(QTextFormat::FontPixelSize));
    format.clearProperty(QTextFormat::FontPixelSize);
    if (size > 0)
        format.setFontPointSize(size);
    return format;
}

QFont in_points(QFont font)
{
    if (font.pixelSize() > 0)
        font.setPointSizeF(points(font.pixelSize()));
    return font;
}

void set_letters_in_points(const QTextBlock &block)
{
    QList<QTextFragment> in_pixels;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        if (is_in_pixels(fragment.fragment().charFormat()))
            in_pixels.append(fragment.fragment());
    }
    QTextCursor cursor(block);
    if (is_in_pixels(block.charFormat()))
        cursor.setBlockCharFormat(in_points(block.charFormat()));
    for (const QTextFragment &fragment : std::as_const(in_pixels)) {
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(in_points(fragment.charFormat()));
    }
}

void measure_for_paper(QTextDocument *document, double scale)
{
    QTextOption option = document->defaultTextOption();
    option.setTabStopDistance(option.tabStopDistance() * scale);
    document->setDefaultTextOption(option);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = in_dots(block.blockFormat(), scale);
        if (format != block.blockFormat())
            QTextCursor(block).setBlockFormat(format);
        set_letters_in_points(block);
    }
}

} // namespace

double page_margin(const QPagedPaintDevice &device)
{
    return margin_in_pixels() * dots_per_pixel(device);
}

std::unique_ptr<QTextDocument> print_copy(QTextDocument *source, const QFont &default_font, QPagedPaintDevice *device)
{
    auto copy = std::make_unique<DocumentCopy>(source, in_points(default_font));
    measure_for_paper(copy.get(), dots_per_pixel(*device));
    QTextFrameFormat page = copy->rootFrame()->frameFormat();
    page.setMargin(margin_in_pixels());
    copy->rootFrame()->setFrameFormat(page);
    new PrintedPictures(copy.get());
    copy->documentLayout()->setPaintDevice(device);
    copy->setPageSize(QSizeF(device->width(), device->height()));
    return copy;
}

} // namespace my_classes
