// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/misspelled_matcher.h"

#include <my_classes/custom_highlighter.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

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

CustomHighlighter::~CustomHighlighter() = default;

void CustomHighlighter::setMisspelled(const QSet<QString> &words)
{
    misspelled = words;
    m_matcher = std::make_unique<MisspelledMatcher>(misspelled);
    rehighlight();
}

void CustomHighlighter::setDocument(QTextDocument *document)
{
    // The base class would put off a full pass to the next turn of the event loop; one without words to mark, at once,
    // takes its place.
    auto matcher = std::exchange(m_matcher, std::make_unique<MisspelledMatcher>(QSet<QString>()));
    QSyntaxHighlighter::setDocument(document);
    QSyntaxHighlighter::rehighlight();
    m_matcher = std::move(matcher);
    rehighlight();
}

void CustomHighlighter::rehighlight()
{
    if (!document())
        return;
    const QTextCharFormat underline = underline_format();
    int first_changed = -1;
    int changed_end = -1;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        QTextLayout *layout = block.layout();
        const bool is_composing = !layout->preeditAreaText().isEmpty();
        if (is_composing) { // its formats belong to the input method; the base class knows how to keep them
            rehighlightBlock(block);
            continue;
        }
        QList<QTextLayout::FormatRange> formats;
        if (!m_matcher->is_empty()) {
            const QList<MisspelledMatcher::Range> ranges = m_matcher->ranges(block.text());
            for (const MisspelledMatcher::Range &range : ranges)
                formats.append({range.start, range.length, underline});
        }
        if (formats == layout->formats())
            continue;
        layout->setFormats(formats);
        if (first_changed < 0)
            first_changed = block.position();
        changed_end = block.position() + block.length();
    }
    // The layout walks the paragraphs behind each change it is told of, so it is told once.
    if (first_changed >= 0)
        document()->markContentsDirty(first_changed, changed_end - first_changed);
}

void CustomHighlighter::highlightBlock(const QString &text)
{
    if (m_matcher->is_empty())
        return;
    const QTextCharFormat underline = underline_format();
    const QList<MisspelledMatcher::Range> ranges = m_matcher->ranges(text);
    for (const MisspelledMatcher::Range &range : ranges)
        setFormat(range.start, range.length, underline);
}

} // namespace my_classes
