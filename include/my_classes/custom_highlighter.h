// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtGui/QSyntaxHighlighter>
#include <QtGui/QTextLayout>

#include <memory>

namespace my_classes {

class MisspelledMatcher;
class WordMarker;

/// Underlines every whole-word, case-sensitive occurrence of the listed words in its document, in red.
///
/// A listed word is a pattern, as it stands: "c.t" also underlines "cat". An invalid pattern underlines nothing.
/// The cost of a paragraph does not depend on how many plain words are listed.
class MY_CLASSES_EXPORT CustomHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// `parent` owns the highlighter.
    explicit CustomHighlighter(QTextDocument *parent);
    ~CustomHighlighter() override;

    /// Replaces the listed words and formats the whole document again at once.
    void setMisspelled(const QSet<QString> &misspelled);

    /// Moves on to another document, which may be null.
    void setDocument(QTextDocument *document);

    /// Formats the whole document again, with one notification to its layout where the base class sends one for
    /// every paragraph that changes.
    void rehighlight();

    /// The listed words. Changed by setMisspelled() only, and by an editor that marks words while they are written.
    QSet<QString> misspelled;

protected:
    void highlightBlock(const QString &text) override;

private:
    friend class WordMarker;

    void add_to_list(const QString &word);
    void remove_from_list(const QString &word);
    bool mark(const QTextBlock &block);
    void take_over_edits();
    void mark_edited(int position, int removed, int added);
    QList<QTextLayout::FormatRange> underlines(const QTextBlock &block, const QString &text) const;

    std::unique_ptr<MisspelledMatcher> m_matcher;
    WordMarker *m_marker = nullptr; // while there is one
    QMetaObject::Connection m_edits;
};

} // namespace my_classes
