// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/text_statistics.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QTextDocument>

#include <vector>

QT_BEGIN_NAMESPACE
class QTextBlock;
class QTextCursor;
QT_END_NAMESPACE

namespace my_classes {

/// The counts of a document, kept per paragraph and up to date from its change notifications.
///
/// The paragraphs' counts are the leaves of a binary tree whose inner nodes hold the counts of all below, so that an
/// edit inside a paragraph costs that paragraph and the logarithm of their number.
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

private:
    void finish();
    void update(int position, int removed, int added);
    void recount_everything();
    bool is_current() const;
    void resize_leaves(int first, int old_count, int new_count);
    void refresh_parents(int first, int last);
    TextCounts of_blocks(int first, int end) const;

    QPointer<QTextDocument> m_document;
    bool m_is_told = false; // of the change that is being finished
    int m_block_count = 0;
    int m_capacity = 0;             // leaves that fit, a power of two
    std::vector<TextCounts> m_tree; // root at 1, leaf of block i at m_capacity + i
};

} // namespace my_classes
