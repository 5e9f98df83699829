// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/paragraph_lines.h"

namespace my_classes {

/// Guesses heights of paragraphs from those of some others, and widths where lines are as long as their text.
class HeightEstimate
{
public:
    HeightEstimate() = default;
    /// Knows the page's font only.
    explicit HeightEstimate(const Page &page);

    /// Lays out about `count` paragraphs from all over the document.
    void sample(const QTextDocument *document, const Page &page, int count);
    /// Of a paragraph that has its lines.
    void learn(const QTextBlock &block, const ParagraphExtent &extent);
    ParagraphExtent of(const QTextBlock &block) const;

private:
    int m_paragraphs = 0;
    int m_lines = 0;
    int m_full_lines = 0; // all but the last ones of their paragraphs
    qint64 m_full_line_characters = 0;
    QFont m_font;
    bool m_breaks_lines = true;
    qint64 m_letters = 0;
    Units m_widths = 0;
    Units m_gaps = 0;
    Units m_line_heights = 0;
};

} // namespace my_classes
