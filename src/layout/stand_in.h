// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/document_copy.h"

#include <QtCore/QHash>
#include <QtGui/QTextObject>

QT_BEGIN_NAMESPACE
class QTextCursor;
class QTextList;
QT_END_NAMESPACE

namespace my_classes {

/// A copy of a document, position for position, whose line heights Qt knows, and which is kept like its source.
class StandIn : public DocumentCopy
{
    Q_OBJECT

public:
    explicit StandIn(QTextDocument *source);

    /// Takes over a change of the source's text; false if that cannot be done, and another copy is needed.
    bool take_over(int from, int removed, int added);
    /// Takes over what the source is shown with: fonts, widths, margins.
    void take_over_settings();
    /// Takes over what paragraphs show beyond their text: the formats of highlighters, text that is being composed, and
    /// whether they are hidden.
    void take_over_marks(int from, int length);

private:
    bool is_like_source() const;
    void copy_paragraph(const QTextBlock &from, QTextCursor *to);
    void copy_list(const QTextBlock &from, const QTextBlock &to);

    QHash<const QTextList *, QPointer<QTextList>> m_lists; // those of the source and ours
};

} // namespace my_classes
