// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/paragraph_heights.h"

#include <QtGui/QFont>
#include <QtGui/QTextOption>

QT_BEGIN_NAMESPACE
class QTextBlock;
class QTextDocument;
class QPaintDevice;
QT_END_NAMESPACE

namespace my_classes {

/// The space that a document gives its paragraphs.
struct Page
{
    static Page of(const QTextDocument *document, const QPaintDevice *device);

    bool operator==(const Page &other) const;
    bool operator!=(const Page &other) const { return !(*this == other); }
    bool wraps() const { return width > 0; }
    /// Whether lines end at the width, too: otherwise it only aligns them.
    bool breaks_lines() const;
    /// Of the text without the page's margins.
    Units text_width() const;

    Units width = 0; // with margins; 0 or less: lines are as long as they want
    Units left = 0;
    Units top = 0;
    Units right = 0;
    Units bottom = 0;
    int columns = 0; // letters of mean width that a line may hold; 0: no matter
    qreal scale = 1; // of the lengths in formats, by the device's resolution
    qreal indent_width = 0;
    QFont font;
    QTextOption option;
};

/// Makes the paragraph's lines anew and tells their extent. Relative to the paragraph's place, which is not set.
ParagraphExtent lay_out_lines(const QTextBlock &block, const Page &page);

/// How far lines stand out above or below their paragraph, which is so high, as with a fixed line height smaller than
/// the font's.
Units overhang(const QTextBlock &block, Units height);

/// Between the paragraph and the one before.
Units gap_above(const QTextBlock &block, const Page &page);

} // namespace my_classes
