// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/document_copy.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocumentFragment>
#include <QtGui/QTextFrame>
#include <QtGui/QTextList>

namespace my_classes {

DocumentCopy::DocumentCopy(QTextDocument *source, const QFont &default_font)
    : m_source(source)
{
    setUndoRedoEnabled(false);
    setDefaultFont(default_font);
    copy_settings();
    if (source->characterCount() > 1) // Qt crashes on copying an empty list item alone
        QTextCursor(this).insertFragment(QTextDocumentFragment(source));
    rootFrame()->setFrameFormat(source->rootFrame()->frameFormat());
    copy_first_block();
}

QVariant DocumentCopy::loadResource(int type, const QUrl &name)
{
    return m_source ? m_source->resource(type, name) : QVariant();
}

void DocumentCopy::copy_settings()
{
    setBaseUrl(m_source->baseUrl());
    setDefaultTextOption(m_source->defaultTextOption());
    setIndentWidth(m_source->indentWidth());
    setDocumentMargin(m_source->documentMargin()); // what the page's format is written relative to
    for (const MetaInformation information : {DocumentTitle, DocumentUrl, CssMedia})
        setMetaInformation(information, m_source->metaInformation(information));
}

// A fragment has formats of separators and letters, and nothing stands in front of the first paragraph.
void DocumentCopy::copy_first_block()
{
    const QTextBlock source = m_source->firstBlock();
    QTextBlockFormat format = source.blockFormat();
    format.setObjectIndex(-1); // a list of the source's
    QTextCursor cursor(this);
    cursor.setBlockFormat(format);
    cursor.setBlockCharFormat(source.charFormat());
    const QTextList *list = source.textList();
    if (!list)
        return;
    if (list->count() > 1)
        findBlockByNumber(list->item(1).blockNumber()).textList()->add(firstBlock());
    else
        cursor.createList(list->format());
}

} // namespace my_classes
