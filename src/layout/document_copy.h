// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtGui/QTextDocument>

namespace my_classes {

/// A copy of what a document holds, in another default font: its HTML at that size, or something to print. It carries
/// no undo history and no spelling underlines.
///
/// QTextDocument::clone() loses what the first paragraph and the page are formatted as, and crashes on a single empty
/// list item.
class DocumentCopy : public QTextDocument
{
    Q_OBJECT

public:
    /// Pictures are asked of `source`, for as long as it lives.
    DocumentCopy(QTextDocument *source, const QFont &default_font);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    QTextDocument *source() const { return m_source; }
    void copy_settings();

private:
    void copy_first_block();

    QPointer<QTextDocument> m_source;
};

} // namespace my_classes
