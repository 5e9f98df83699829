// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/stand_in.h"

#include "layout/line_spacing.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextLayout>
#include <QtGui/QTextList>

#include <algorithm>

namespace my_classes {

namespace {

QTextBlock paragraph_at(const QTextDocument *document, int position)
{
    return document->findBlock(std::clamp(position, 0, document->characterCount() - 1));
}

/// Whether all of it is outside of tables and frames, or within one cell.
bool has_plain_separators(const QTextBlock &first, const QTextBlock &last)
{
    for (QTextBlock block = first; block.isValid() && block != last; block = block.next()) {
        if (block.document()->characterAt(block.position() + block.length() - 1) != QChar::ParagraphSeparator)
            return false;
    }
    return true;
}

bool has_float(const QTextBlock &first, const QTextBlock &last)
{
    for (QTextBlock block = first; block.isValid() && block.position() <= last.position(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextObject *object = block.document()->objectForFormat(fragment.fragment().charFormat());
            if (object && object->format().toFrameFormat().position() != QTextFrameFormat::InFlow)
                return true;
        }
    }
    return false;
}

void copy_marks(const QTextBlock &from, const QTextBlock &to)
{
    const QTextLayout *source = from.layout();
    QTextLayout *layout = to.layout();
    if (source->preeditAreaText() != layout->preeditAreaText() ||
        source->preeditAreaPosition() != layout->preeditAreaPosition())
        layout->setPreeditArea(source->preeditAreaPosition(), source->preeditAreaText());
    if (source->formats() != layout->formats())
        layout->setFormats(source->formats());
    QTextBlock(to).setVisible(from.isVisible());
}

} // namespace

StandIn::StandIn(QTextDocument *source)
    : DocumentCopy(source, source->defaultFont())
{
    QTextBlock from = source->begin();
    for (QTextBlock to = begin(); from.isValid() && to.isValid(); from = from.next(), to = to.next()) {
        if (has_factor_line_height(to.blockFormat()))
            QTextCursor(to).setBlockFormat(with_known_line_height(to.blockFormat()));
        if (from.textList() && to.textList())
            m_lists.insert(from.textList(), to.textList());
    }
    setPageSize(source->pageSize());
    take_over_marks(0, source->characterCount());
}

bool StandIn::is_like_source() const
{
    return characterCount() == source()->characterCount() && blockCount() == source()->blockCount();
}

/// Whole paragraphs are replaced.
bool StandIn::take_over(int from, int removed, int added)
{
    const QTextBlock first = paragraph_at(source(), from);
    const QTextBlock last = paragraph_at(source(), from + added);
    const QTextBlock old_first = paragraph_at(this, from);
    const QTextBlock old_last = paragraph_at(this, from + removed);
    if (from < 0 || first.position() != old_first.position() || !has_plain_separators(first, last) ||
        !has_plain_separators(old_first, old_last) || has_float(first, last))
        return false;
    QTextCursor cursor(old_first);
    cursor.beginEditBlock();
    cursor.setPosition(old_last.position() + old_last.length() - 1, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    copy_paragraph(first, &cursor);
    for (QTextBlock block = first; block != last;) {
        block = block.next();
        cursor.insertBlock();
        copy_paragraph(block, &cursor);
    }
    cursor.endEditBlock();
    return is_like_source();
}

void StandIn::copy_paragraph(const QTextBlock &from, QTextCursor *to)
{
    QTextBlockFormat format = with_known_line_height(from.blockFormat());
    format.setObjectIndex(-1); // a list of the source's
    to->setBlockFormat(format);
    to->setBlockCharFormat(from.charFormat());
    if (from.textList())
        copy_list(from, to->block());
    for (auto fragment = from.begin(); !fragment.atEnd(); ++fragment) {
        QTextCharFormat characters = fragment.fragment().charFormat();
        characters.setObjectIndex(-1); // a frame of the source's around a picture
        to->insertText(fragment.fragment().text(), characters);
    }
    copy_marks(from, to->block());
}

void StandIn::copy_list(const QTextBlock &from, const QTextBlock &to)
{
    const QTextList *list = from.textList();
    QPointer<QTextList> &own = m_lists[list];
    if (!own)
        own = QTextCursor(to).createList(list->format());
    else
        own->add(to);
    if (own->format() != list->format())
        own->setFormat(list->format());
}

void StandIn::take_over_settings()
{
    setDefaultFont(source()->defaultFont());
    copy_settings();
    setPageSize(source()->pageSize());
}

void StandIn::take_over_marks(int from, int length)
{
    if (!is_like_source())
        return;
    QTextBlock to = paragraph_at(this, from);
    for (QTextBlock block = paragraph_at(source(), from); block.isValid() && block.position() <= from + length;
         block = block.next(), to = to.next())
        copy_marks(block, to);
    markContentsDirty(from, length);
}

} // namespace my_classes
