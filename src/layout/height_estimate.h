// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/paragraph_lines.h"

#include <utility>
#include <vector>

namespace my_classes {

/// Guesses heights of paragraphs from those of a few, which it lays out.
class HeightEstimate
{
public:
    HeightEstimate() = default;
    /// Lays out about `sample` paragraphs from all over the document.
    HeightEstimate(const QTextDocument *document, const Page &page, int sample);

    ParagraphExtent of(const QTextBlock &block) const;
    /// How many times as high as `known` the lines of the same paragraphs are now; 0 if that cannot be told.
    double growth(const ParagraphHeights &known) const;

private:
    void learn(const QTextBlock &block, const ParagraphExtent &extent);

    std::vector<std::pair<int, Units>> m_sample; // numbers of paragraphs, and heights of their lines
    int m_paragraphs = 0;
    int m_lines = 0;
    int m_full_lines = 0; // all but the last ones of their paragraphs
    qint64 m_full_line_characters = 0;
    Units m_gaps = 0;
    Units m_line_heights = 0;
};

} // namespace my_classes
