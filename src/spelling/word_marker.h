// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "spelling/checked_paragraphs.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
class QTextBlock;
class QTextCursor;
class QTextDocument;
QT_END_NAMESPACE

namespace my_spellchecker {
class Dictionary;
}

namespace my_classes {

class ChangedText;
class CustomHighlighter;
class CustomTextEditor;

/// Marks the misspelled words of an editor while the person writes.
///
/// A moment after an edit the paragraphs that it touched are checked, many of them in slices between other events. A
/// word that is new to the list, or has left it, may stand in paragraphs that were checked before as part of something
/// that is no word, such as an address: these are looked through after that. What is underlined then is what
/// check_spelling() would underline, except for the word being typed.
class WordMarker : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the highlighter of `editor`.
    explicit WordMarker(CustomTextEditor *editor);
    ~WordMarker() override;

    /// The document or the language is another.
    void start_again();
    /// The highlighter was given other words.
    void list_was_replaced();
    /// Takes words that have become right off the list.
    void leave_out(const QSet<QString> &words);
    /// A change of the document that the highlighter has not seen yet, as QTextDocument::contentsChange() tells it.
    void edited(int position, int removed, int added);

    /// Whether the caret stands where the last edit was made, in or behind a word.
    bool is_typing();
    /// Where in `block` the caret is while the person types there; -1 elsewhere. The word there is not marked.
    int typed_position(const QTextBlock &block) const;

Q_SIGNALS:
    /// These words have come or gone from the list.
    void list_changed(const QSet<QString> &words);

private:
    void follow_caret();
    void stop_typing();
    bool types_at_caret(int position, int removed, int added) const;
    int caret() const;
    QTextDocument *document() const;

    void work();
    bool work_for_a_while();
    void check_paragraph(int paragraph, ChangedText *changed);
    QStringList misspelled_words(const QTextBlock &block) const;
    void settle_list();
    void add_to_list(const QString &word);
    void remove_from_list(const QString &word);
    void look_through(int paragraph, ChangedText *changed);

    CustomTextEditor *m_editor;
    QPointer<CustomHighlighter> m_highlighter;
    std::shared_ptr<my_spellchecker::Dictionary> m_dictionary; // whose answers the paragraphs hold
    int m_generation = -1;                                     // of these answers
    CheckedParagraphs m_paragraphs;
    QTimer m_timer;
    bool m_is_typing = false;
    int m_caret = -1;                  // of the typing
    bool m_is_list_foreign = true;     // other words may be listed than those of the paragraphs
    QSet<QString> m_words_to_look_for; // that have come or gone
    int m_next_to_look_through = 0;
    QSet<QString> m_news;
};

/// Whether the word at `start` of `text` holds or touches `position`, also with an apostrophe between them.
bool touches(QStringView text, qsizetype start, qsizetype length, qsizetype position);

} // namespace my_classes
