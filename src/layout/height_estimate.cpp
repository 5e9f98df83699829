// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/height_estimate.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cmath>

namespace my_classes {

namespace {
constexpr int k_longest_of_sample = 10'000; // characters
constexpr Units k_widest = 1'000'000 * 64;

/// As most heights are: what follows does not move by parts of a pixel when they become known.
qint32 whole_pixels(Units units)
{
    return static_cast<qint32>((units + 32) / 64 * 64);
}

/// How many letters of the page's font the text is as wide as.
qint64 mean_letters(const QTextBlock &block, const QFont &font)
{
    const qreal size = block.charFormat().fontPointSize();
    return size > 0 && font.pointSizeF() > 0 ? std::lround(block.length() * size / font.pointSizeF()) : block.length();
}

} // namespace

HeightEstimate::HeightEstimate(const Page &page)
{
    const QFontMetricsF metrics(page.font);
    m_paragraphs = 1;
    m_lines = 1;
    m_line_heights = to_units(metrics.height());
    m_font = page.font;
    m_breaks_lines = page.breaks_lines();
    m_full_lines = m_breaks_lines ? 1 : 0;
    m_full_line_characters =
        std::max<qint64>(1, page.text_width() / std::max<Units>(1, to_units(metrics.averageCharWidth())));
}

void HeightEstimate::sample(const QTextDocument *document, const Page &page, int count)
{
    const int all = document->blockCount();
    const int step = std::max(1, all / count);
    for (int i = step / 2; i < all; i += step) {
        const QTextBlock block = document->findBlockByNumber(i);
        if (!block.isVisible() || block.length() > k_longest_of_sample)
            continue;
        learn(block, lay_out_lines(block, page));
        block.layout()->clearLayout();
    }
}

void HeightEstimate::learn(const QTextBlock &block, const ParagraphExtent &extent)
{
    const QTextLayout *layout = block.layout();
    const int lines = layout->lineCount();
    if (lines == 0)
        return;
    ++m_paragraphs;
    m_lines += lines;
    m_gaps += extent.gap;
    m_line_heights += extent.height - extent.gap;
    m_letters += mean_letters(block, m_font);
    m_widths += extent.width;
    m_full_lines += lines - 1;
    m_full_line_characters += layout->lineAt(lines - 1).textStart();
}

ParagraphExtent HeightEstimate::of(const QTextBlock &block) const
{
    ParagraphExtent extent;
    if (!block.isVisible() || m_lines == 0)
        return extent;
    const qint64 characters = std::max(1, block.length() - 1);
    const qint64 lines =
        (characters * m_full_lines + m_full_line_characters - 1) / std::max<qint64>(1, m_full_line_characters);
    extent.gap = whole_pixels(m_gaps / m_paragraphs);
    extent.height = extent.gap + whole_pixels(std::max<qint64>(1, lines) * m_line_heights / m_lines);
    if (!m_breaks_lines && m_letters > 0)
        extent.width = static_cast<qint32>(std::min(k_widest, m_widths * mean_letters(block, m_font) / m_letters));
    return extent;
}

} // namespace my_classes
