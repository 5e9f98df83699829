// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

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
    /// Pictures are asked of `source`, which has to live as long.
    DocumentCopy(QTextDocument *source, const QFont &default_font);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    void copy_settings();
    void copy_first_block();

    QTextDocument *m_source;
};

} // namespace my_classes
