// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/kept_formats.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace my_classes {

KeptFormats::KeptFormats(QTextDocument *document)
    : m_document(document)
{
    int number = 0;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next(), ++number) {
        const QTextLayout *layout = block.layout();
        const QList<QTextLayout::FormatRange> formats = layout->formats();
        if (!formats.isEmpty() || !layout->preeditAreaText().isEmpty())
            m_paragraphs.push_back({number, formats, layout->preeditAreaPosition(), layout->preeditAreaText()});
    }
}

void KeptFormats::give_back() const
{
    for (const Paragraph &paragraph : m_paragraphs) {
        QTextLayout *layout = m_document->findBlockByNumber(paragraph.number).layout();
        if (!paragraph.preedit.isEmpty())
            layout->setPreeditArea(paragraph.preedit_position, paragraph.preedit);
        layout->setFormats(paragraph.formats);
    }
}

} // namespace my_classes
