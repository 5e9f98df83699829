// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/loaded_sizes.h"

#include <QtCore/QPointer>
#include <QtCore/QStringBuilder>
#include <QtGui/QFont>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <optional>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

// Of what QTextDocument::toHtml() gives.
constexpr QStringView k_start =
    u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
    u"\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n<html><head><meta name=\"qrichtext\"";

/// `format` without the size of `font`; nothing if it has another or none. Sizes in pixels always are in the HTML.
std::optional<QTextCharFormat> without_size_of(const QFont &font, QTextCharFormat format)
{
    if (font.pixelSize() > 0 || !qFuzzyCompare(format.fontPointSize(), font.pointSizeF()))
        return {};
    format.clearProperty(QTextFormat::FontPointSize);
    return format;
}

bool has_size(const QTextCharFormat &format)
{
    return format.hasProperty(QTextFormat::FontPointSize) || format.hasProperty(QTextFormat::FontPixelSize);
}

void forget_size_of(const QFont &font, const QTextBlock &block, QTextCursor &cursor)
{
    const auto block_format = without_size_of(font, block.charFormat());
    if (has_size(block_format.value_or(block.charFormat())))
        return; // the paragraph's own size would take the place of the letters' in HTML
    QList<QTextFragment> fragments;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        fragments.append(fragment.fragment());
    for (const QTextFragment &fragment : std::as_const(fragments)) {
        const auto format = without_size_of(font, fragment.charFormat());
        if (!format)
            continue;
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(*format);
    }
    cursor.setPosition(block.position());
    if (block_format)
        cursor.setBlockCharFormat(*block_format);
}

} // namespace

void forget_size_of(const QFont &font, QTextDocument *document)
{
    const QList<QTextFormat> formats = document->allFormats();
    if (std::none_of(formats.begin(), formats.end(), [&font](const QTextFormat &format) {
            return format.isCharFormat() && without_size_of(font, format.toCharFormat());
        }))
        return; // which spares the walk
    const bool had_undo = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        forget_size_of(font, block, cursor);
        // In HTML the own size of a ruler stands for that of all text behind it.
        if (block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth) &&
            has_size(block.charFormat()))
            break;
    }
    const QPointer<QTextDocument> here(document);
    cursor.endEditBlock();
    if (here) // who hears of it may delete it
        document->setUndoRedoEnabled(had_undo);
}

QString without_size_of(const QFont &font, const QString &html)
{
    if (font.pixelSize() > 0 || !html.startsWith(k_start))
        return {};
    const QString size = u"font-size:%1pt;"_s.arg(font.pointSizeF());
    const qsizetype body = html.indexOf(u"<body style=\""_s, k_start.size());
    const qsizetype at = body < 0 ? -1 : html.indexOf(size, body);
    if (at < 0 || at > html.indexOf(u'>', body) || html.indexOf(size, at + 1) >= 0 || html.indexOf(u"<hr"_s, at) >= 0)
        return {};
    return QStringView(html).first(at) % QStringView(html).sliced(at + size.size());
}

} // namespace my_classes
