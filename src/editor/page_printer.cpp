// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/page_printer.h"

#include "editor/print_copy.h"

#include <QtCore/QList>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPagedPaintDevice>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtPrintSupport/QPrinter>

#include <algorithm>

namespace my_classes {

namespace {

struct Page
{
    QTextDocument *document;
    int in_document; // from 0
    int number;      // as printed
};

QList<Page> pages_of(const std::vector<std::unique_ptr<QTextDocument>> &documents)
{
    QList<Page> pages;
    for (const auto &document : documents) {
        for (int i = 0; i < document->pageCount(); ++i)
            pages.append({document.get(), i, static_cast<int>(pages.size()) + 1});
    }
    return pages;
}

QList<Page> without_unwanted(QList<Page> pages, const QPageRanges &ranges)
{
    if (!ranges.isEmpty())
        pages.removeIf([&ranges](const Page &page) { return !ranges.contains(page.number); });
    return pages;
}

/// In the order in which they come out of the printer; for printers that make no copies themselves, with the copies.
QList<Page> in_order_of(const QPrinter &printer, QList<Page> pages)
{
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QList<Page> all;
    if (printer.collateCopies()) {
        for (int i = 0; i < copies; ++i)
            all += pages;
    } else {
        for (const Page &page : std::as_const(pages))
            all += QList<Page>(copies, page);
    }
    return all;
}

void draw_number(QPainter &painter, const Page &page)
{
    const QPagedPaintDevice &device = static_cast<const QPagedPaintDevice &>(*painter.device());
    painter.setFont(QFont(page.document->defaultFont(), painter.device()));
    const QString number = QString::number(page.number);
    const QFontMetricsF metrics = painter.fontMetrics();
    const double margin = page_margin(device);
    const double gap = 5.0 / 72 * device.logicalDpiY();
    painter.drawText(QPointF(device.width() - margin - metrics.horizontalAdvance(number),
                             device.height() - margin + metrics.ascent() + gap),
                     number);
}

void draw(QPainter &painter, const Page &page)
{
    const QSizeF size = page.document->pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(QPointF(0, page.in_document * size.height()), size);
    context.palette.setColor(QPalette::Text, Qt::black); // also where the theme is dark
    painter.save();
    painter.translate(0, -context.clip.top());
    painter.setClipRect(context.clip);
    page.document->documentLayout()->draw(&painter, context);
    painter.restore();
    draw_number(painter, page);
}

bool is_stopped(const QPrinter *printer)
{
    return printer && (printer->printerState() == QPrinter::Aborted || printer->printerState() == QPrinter::Error);
}

} // namespace

void print_pages(QPagedPaintDevice *device, const std::vector<std::unique_ptr<QTextDocument>> &documents)
{
    const auto *printer = dynamic_cast<const QPrinter *>(device);
    QList<Page> pages = without_unwanted(pages_of(documents), device->pageRanges());
    if (printer)
        pages = in_order_of(*printer, pages);
    if (pages.isEmpty())
        return;
    QPainter painter;
    if (!painter.begin(device))
        return; // Qt has warned
    for (qsizetype i = 0; i < pages.size() && !is_stopped(printer); ++i) {
        if (i > 0 && !device->newPage())
            return;
        draw(painter, pages[i]);
    }
}

} // namespace my_classes
