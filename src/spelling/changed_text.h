// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace my_classes {

/// Tells a document's layout of paragraphs whose underlines have changed: of neighbours together, since a layout may
/// walk everything behind each change, of distant ones apart, since it lays out what lies between.
class ChangedText
{
public:
    explicit ChangedText(QTextDocument *document)
        : m_document(document)
    {
    }
    ~ChangedText() { tell(); }

    ChangedText(const ChangedText &) = delete;
    ChangedText &operator=(const ChangedText &) = delete;

    void add(const QTextBlock &block)
    {
        if (m_start >= 0 && block.position() > m_end + k_neighbourhood)
            tell();
        if (m_start < 0)
            m_start = block.position();
        m_end = block.position() + block.length();
    }

private:
    static constexpr int k_neighbourhood = 10'000; // characters

    void tell()
    {
        if (m_start >= 0)
            m_document->markContentsDirty(m_start, m_end - m_start);
        m_start = -1;
    }

    QTextDocument *m_document;
    int m_start = -1;
    int m_end = -1;
};

} // namespace my_classes
