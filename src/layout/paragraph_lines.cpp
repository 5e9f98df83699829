// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/paragraph_lines.h"

#include "layout/line_spacing.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>
#include <QtGui/QTextLayout>
#include <QtGui/QTextList>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <cmath>
#include <limits>

namespace my_classes {

namespace {

constexpr Units k_endless = std::numeric_limits<qint32>::max() / 256; // as wide as a line may be

struct SideMargins
{
    Units left;
    Units right;
    Units first_line; // more on the side where the text starts
};

/// Where a line stands in its paragraph.
struct LinePlace
{
    Units raise;   // above the height reached so far
    Units advance; // to the next line
    Units bottom;  // the end, if no line follows
};

Units scaled(qreal pixels, const Page &page)
{
    return to_units(pixels * page.scale);
}

int indent_levels(const QTextBlock &block, const QTextBlockFormat &format)
{
    const QTextList *list = block.textList();
    return format.indent() + (list ? list->format().indent() : 0);
}

SideMargins side_margins(const QTextBlock &block, const QTextBlockFormat &format, const Page &page)
{
    SideMargins margins{scaled(format.leftMargin(), page), scaled(format.rightMargin(), page),
                        scaled(format.textIndent(), page)};
    const Units indent = scaled(indent_levels(block, format) * page.indent_width, page);
    (block.textDirection() == Qt::RightToLeft ? margins.right : margins.left) += indent;
    return margins;
}

QTextOption option_of(const QTextBlock &block, const QTextBlockFormat &format, const Page &page)
{
    QTextOption option = page.option;
    const Qt::LayoutDirection direction = block.textDirection();
    option.setTextDirection(direction);
    const bool has_own = format.hasProperty(QTextFormat::BlockAlignment);
    option.setAlignment(QStyle::visualAlignment(direction, has_own ? format.alignment() : page.option.alignment()));
    if (format.nonBreakableLines() || !page.wraps())
        option.setWrapMode(QTextOption::ManualWrap);
    if (format.hasProperty(QTextFormat::TabPositions))
        option.setTabs(format.tabPositions());
    return option;
}

void set_wrap_mode(QTextLayout *layout, QTextOption::WrapMode mode)
{
    QTextOption option = layout->textOption();
    option.setWrapMode(mode);
    layout->setTextOption(option);
}

/// Text that takes more is aligned to what it takes. As Qt does, all such lines of a paragraph whose words may be
/// broken are broken anywhere, and those that follow are tried with whole words. Indents may leave less than no room.
void set_width(QTextLayout *layout, QTextLine &line, Units room, int columns, bool may_break_words)
{
    if (columns > 0) {
        line.setNumColumns(columns, to_pixels(std::max<Units>(0, room)));
        return;
    }
    line.setLineWidth(to_pixels(std::max<Units>(0, room)));
    const qreal natural = line.naturalTextWidth();
    if (to_units(natural) <= room)
        return;
    if (may_break_words)
        set_wrap_mode(layout, QTextOption::WrapAnywhere);
    line.setLineWidth(natural);
    if (may_break_words)
        set_wrap_mode(layout, QTextOption::WordWrap);
}

LinePlace line_place(const QTextBlockFormat &format, const QTextLine &line, const Page &page)
{
    // Lines overlap by a pixel where a picture swallows the leading; the last one has its height in full.
    const qreal with_leading = std::ceil(line.ascent() + line.descent() + line.leading());
    const Units height = to_units(line_height(format, with_leading, page.scale));
    const Units bottom = to_units(line_height(format, line.height(), page.scale));
    switch (format.lineHeightType()) {
    case QTextBlockFormat::FixedHeight: // the base line at four fifths
        return {to_units(line.ascent() + std::max(line.leading(), 0.0)) - height * 4 / 5, height, bottom};
    case QTextBlockFormat::MinimumHeight:
        return {to_units(line.height()) - height, height, bottom};
    default:
        return {0, height, bottom};
    }
}

} // namespace

Page Page::of(const QTextDocument *document, const QPaintDevice *device)
{
    Page page;
    if (const QScreen *screen = QGuiApplication::primaryScreen(); device && screen)
        page.scale = device->logicalDpiY() / std::round(screen->logicalDotsPerInchY());
    const QTextFrameFormat format = document->rootFrame()->frameFormat();
    page.width = to_units(document->pageSize().width());
    page.left = scaled(format.leftMargin(), page);
    page.top = scaled(format.topMargin(), page);
    page.right = scaled(format.rightMargin(), page);
    page.bottom = scaled(format.bottomMargin(), page);
    page.indent_width = document->indentWidth();
    page.font = document->defaultFont();
    page.option = document->defaultTextOption();
    return page;
}

bool Page::operator==(const Page &other) const
{
    return width == other.width && left == other.left && top == other.top && right == other.right &&
           bottom == other.bottom && columns == other.columns && qFuzzyCompare(scale, other.scale) &&
           qFuzzyCompare(1 + indent_width, 1 + other.indent_width) && font == other.font &&
           option.alignment() == other.option.alignment() && option.wrapMode() == other.option.wrapMode() &&
           option.flags() == other.option.flags() && option.textDirection() == other.option.textDirection() &&
           option.tabStopDistance() == other.option.tabStopDistance() && option.tabs() == other.option.tabs() &&
           option.useDesignMetrics() == other.option.useDesignMetrics();
}

bool Page::breaks_lines() const
{
    return wraps() && option.wrapMode() != QTextOption::NoWrap && option.wrapMode() != QTextOption::ManualWrap;
}

Units Page::text_width() const
{
    return wraps() ? std::max<Units>(0, width - left - right) : k_endless;
}

ParagraphExtent lay_out_lines(const QTextBlock &block, const Page &page)
{
    QTextLayout *layout = block.layout();
    const QTextBlockFormat format = block.blockFormat();
    const SideMargins margins = side_margins(block, format, page);
    const bool is_reversed = block.textDirection() == Qt::RightToLeft;
    const QTextOption option = option_of(block, format, page);
    const bool may_break_words = option.wrapMode() == QTextOption::WrapAtWordBoundaryOrAnywhere;
    layout->setTextOption(option);

    Units y = 0;
    Units end = 0;
    Units width = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        const Units indent = line.lineNumber() == 0 ? margins.first_line : 0;
        const Units left = margins.left + (is_reversed ? 0 : indent);
        const Units right = page.text_width() - margins.right - (is_reversed ? indent : 0);
        line.setLeadingIncluded(true);
        set_width(layout, line, right - left, page.columns, may_break_words);
        const LinePlace place = line_place(format, line, page);
        line.setPosition(QPointF(to_pixels(left), to_pixels(y - place.raise)));
        end = y + place.bottom;
        y += place.advance;
        width = std::max(width, left + to_units(line.naturalTextWidth()) + margins.right);
    }
    layout->endLayout();

    ParagraphExtent extent;
    extent.gap = static_cast<qint32>(gap_above(block, page));
    extent.height = static_cast<qint32>(extent.gap + end);
    extent.width = static_cast<qint32>(width);
    extent.is_measured = true;
    extent.has_lines = true;
    extent.is_cached = layout->cacheEnabled();
    return extent;
}

Units overhang(const QTextBlock &block, Units height)
{
    const QTextLayout *layout = block.layout();
    Units most = 0;
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const Units top = to_units(line.y());
        most = std::max({most, -top, top + to_units(line.height()) - height});
    }
    return most;
}

Units gap_above(const QTextBlock &block, const Page &page)
{
    const QTextBlock before = block.previous();
    if (!before.isValid())
        return 0;
    return std::max(scaled(before.blockFormat().bottomMargin(), page), scaled(block.blockFormat().topMargin(), page));
}

} // namespace my_classes
