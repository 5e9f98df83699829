// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/text_statistics.h"
#include "frame/sum_tree.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QTextDocument>

QT_BEGIN_NAMESPACE
class QTextBlock;
class QTextCursor;
QT_END_NAMESPACE

namespace my_classes {

/// The counts of a document, kept per paragraph and up to date from its change notifications: an edit costs the
/// paragraphs that it touches and the logarithm of their number.
class DocumentStatistics : public QObject
{
    Q_OBJECT

public:
    explicit DocumentStatistics(QTextDocument *document);

    /// Null once it is gone.
    QTextDocument *document() const { return m_document; }

    /// The counts of toPlainText().
    TextCounts of_document();
    /// The counts of the cursor's selectedText().
    TextCounts of_selection(const QTextCursor &cursor);

Q_SIGNALS:
    /// The counts were wrong until now: an edit was made inside a change notification, which is not notified.
    void corrected();
    /// More has changed than the change notification says: undo where lists are may fall short, for instance. Emitted
    /// inside of it.
    void misreported();

private:
    void finish();
    void update(int position, int removed, int added);
    void recount_everything();
    bool is_current() const;

    QPointer<QTextDocument> m_document;
    bool m_is_told = false;  // of the change that is being finished
    bool m_is_known = false; // what the paragraphs count
    SumTree<TextCounts, TextCounts> m_paragraphs;
};

} // namespace my_classes
