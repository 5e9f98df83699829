// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtGui/QTextLayout>

#include <vector>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

/// Remembers what paragraphs show beyond their text, which a change of the document's layout drops: the formats of
/// highlighters, and text that is being composed.
class KeptFormats
{
public:
    explicit KeptFormats(QTextDocument *document);
    void give_back() const;

private:
    struct Paragraph
    {
        int number;
        QList<QTextLayout::FormatRange> formats;
        int preedit_position;
        QString preedit;
    };

    QTextDocument *m_document;
    std::vector<Paragraph> m_paragraphs;
};

} // namespace my_classes
