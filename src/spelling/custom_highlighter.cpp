// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/changed_text.h"
#include "spelling/misspelled_matcher.h"
#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>

#include <QtCore/QPointer>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include <typeinfo>
#include <utility>

namespace my_classes {

namespace {

QTextCharFormat underline_format()
{
    QTextCharFormat format;
    format.setUnderlineColor(Qt::red);
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    return format;
}

} // namespace

CustomHighlighter::CustomHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(static_cast<QObject *>(parent))
    , m_matcher(std::make_unique<MisspelledMatcher>(misspelled))
{
    setDocument(parent);
}

CustomHighlighter::~CustomHighlighter()
{
    disconnect(m_edits); // the base class takes its formats away, which is an edit
}

void CustomHighlighter::setMisspelled(const QSet<QString> &words)
{
    misspelled = words;
    m_matcher = std::make_unique<MisspelledMatcher>(misspelled);
    if (m_marker)
        m_marker->list_was_replaced();
    rehighlight();
}

/// Makes no underlines: mark() does, a paragraph at a time.
void CustomHighlighter::add_to_list(const QString &word)
{
    misspelled.insert(word);
    m_matcher->add(word);
}

void CustomHighlighter::remove_from_list(const QString &word)
{
    misspelled.remove(word);
    if (!m_matcher->remove(word))
        m_matcher = std::make_unique<MisspelledMatcher>(misspelled);
}

void CustomHighlighter::setDocument(QTextDocument *document)
{
    // Before the base class, whose formatting of an edit depends on where the person types.
    disconnect(m_edits);
    if (document) {
        const auto follow = [this, document, is_first = true](int position, int removed, int added) mutable {
            if (document != this->document()) // which the base class was told by itself
                return;
            if (std::exchange(is_first, false))
                take_over_edits();
            if (m_marker)
                m_marker->edited(position, removed, added);
            if (typeid(*this) == typeid(CustomHighlighter))
                mark_edited(position, removed, added);
        };
        m_edits = connect(document, &QTextDocument::contentsChange, document, follow);
    }
    // The base class would put off a full pass to the next turn of the event loop; one without words to mark, at once,
    // takes its place.
    auto matcher = std::exchange(m_matcher, std::make_unique<MisspelledMatcher>(QSet<QString>()));
    const QPointer<CustomHighlighter> here(this);
    QSyntaxHighlighter::setDocument(document);
    QSyntaxHighlighter::rehighlight();
    if (!here) // who hears of it may delete the editor
        return;
    m_matcher = std::move(matcher);
    if (m_marker)
        m_marker->start_again();
    rehighlight();
}

void CustomHighlighter::rehighlight()
{
    if (!document())
        return;
    ChangedText changed(document());
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        if (mark(block))
            changed.add(block);
    }
}

/// The base class formats letter by letter, words to mark or not, which takes as long as reading a new text does. A
/// class of a host's may format more than we do, and keeps that.
void CustomHighlighter::take_over_edits()
{
    constexpr const char *k_of_base = "_q_reformatBlocks(int,int,int)"; // elsewhere it goes on, to the same effect
    const int change = document()->metaObject()->indexOfSignal("contentsChange(int,int,int)");
    const int formatting = metaObject()->indexOfSlot(k_of_base);
    if (formatting >= 0 && typeid(*this) == typeid(CustomHighlighter))
        QMetaObject::disconnect(document(), change, this, formatting);
}

void CustomHighlighter::mark_edited(int position, int removed, int added)
{
    const int end = position + added + (removed > 0 ? 1 : 0);
    const QTextBlock first = document()->findBlock(position);
    ChangedText changed(document());
    for (QTextBlock block = first; block.isValid() && block.position() <= end; block = block.next()) {
        if (mark(block))
            changed.add(block);
        if (m_matcher->is_empty()) // what stands behind is new, and has nothing to take away
            break;
    }
}

/// Brings the underlines of a paragraph up to date. Whether the layout has to be told.
bool CustomHighlighter::mark(const QTextBlock &block)
{
    QTextLayout *layout = block.layout();
    const bool is_composing = !layout->preeditAreaText().isEmpty();
    if (is_composing) { // its formats belong to the input method; the base class knows how to keep them
        rehighlightBlock(block);
        return false;
    }
    const QList<QTextLayout::FormatRange> formats =
        m_matcher->is_empty() ? QList<QTextLayout::FormatRange>() : underlines(block, block.text());
    if (formats == layout->formats())
        return false;
    layout->setFormats(formats);
    return true;
}

void CustomHighlighter::highlightBlock(const QString &text)
{
    if (m_matcher->is_empty())
        return;
    const QList<QTextLayout::FormatRange> ranges = underlines(currentBlock(), text);
    for (const QTextLayout::FormatRange &range : ranges)
        setFormat(range.start, range.length, range.format);
}

QList<QTextLayout::FormatRange> CustomHighlighter::underlines(const QTextBlock &block, const QString &text) const
{
    const QTextCharFormat underline = underline_format();
    const int typed = m_marker ? m_marker->typed_position(block) : -1;
    QList<QTextLayout::FormatRange> underlines;
    const QList<MisspelledMatcher::Range> ranges = m_matcher->ranges(text);
    for (const MisspelledMatcher::Range &range : ranges) {
        if (!touches(text, range.start, range.length, typed))
            underlines.append({range.start, range.length, underline});
    }
    return underlines;
}

} // namespace my_classes
