// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/document_text.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <optional>
#include <utility>

namespace my_classes {

namespace {

/// A part of the document's plain text; nothing where a table makes a cursor select something else.
std::optional<QString> read_part(QTextDocument *document, qsizetype position, qsizetype length)
{
    QTextCursor cursor(document);
    cursor.setPosition(int(position));
    cursor.setPosition(int(position + length), QTextCursor::KeepAnchor);
    QString part = cursor.selectedText();
    if (cursor.hasComplexSelection() || cursor.selectionStart() != position || part.size() != length)
        return {};
    for (QChar &c : part) {
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c == QChar(0xfdd0) || c == QChar(0xfdd1))
            c = u'\n';
        else if (c == QChar::Nbsp)
            c = u' ';
    }
    return part;
}

} // namespace

DocumentText::DocumentText(QTextEdit *text_area, QObject *parent)
    : QObject(parent)
    , m_text_area(text_area)
{
}

QString DocumentText::text()
{
    catch_up();
    return m_kept.whole();
}

QStringView DocumentText::tail(qsizetype position)
{
    catch_up();
    return m_kept.tail(position);
}

qsizetype DocumentText::size()
{
    catch_up();
    return m_kept.size();
}

void DocumentText::forget()
{
    m_kept.set({});
    m_is_kept = false;
}

void DocumentText::replaced_in_block(int position, int removed, int added)
{
    if (!m_is_kept || m_changed || position + removed > m_kept.size())
        return forget();
    // Across the cells of a table, removing leaves the separators.
    const bool has_frames = !m_document->rootFrame()->childFrames().isEmpty();
    if (has_frames && m_kept.tail(position).left(removed).contains(u'\n'))
        return forget();
    const auto part = read_part(m_document, position, added);
    if (!part || m_document->characterCount() - 1 != m_kept.size() - removed + added)
        return forget();
    m_kept.replace(position, removed, *part);
    m_length = m_kept.size();
    m_revision = m_document->revision();
    m_patched_in_block = true;
}

void DocumentText::catch_up()
{
    QTextDocument *document = m_text_area ? m_text_area->document() : nullptr;
    if (document != m_document) {
        if (m_document)
            disconnect(m_document, nullptr, this, nullptr);
        m_document = document;
        forget();
        if (document) {
            m_revision = document->revision();
            m_undone = document->availableRedoSteps();
            connect(document, &QTextDocument::contentsChange, this, &DocumentText::on_contents_change);
        }
    }
    if (!document)
        return;

    // A revision that no report came with: somebody blocks signals, or edits inside a block that is still open.
    const qsizetype length = document->characterCount() - 1;
    if (document->revision() != m_revision || length != m_length)
        m_is_kept = false;

    if (m_is_kept && m_changed) {
        const qsizetype removed = m_kept.size() - m_same_before - m_same_behind;
        const qsizetype added = length - m_same_before - m_same_behind;
        const auto part = removed < 0 || added < 0 ? std::nullopt : read_part(document, m_same_before, added);
        m_is_kept = part.has_value();
        if (part)
            m_kept.replace(m_same_before, removed, *part);
    }
    if (!m_is_kept) {
        m_kept.set(document->toPlainText());
        m_is_kept = true;
        m_patched_in_block = false;
        m_length = m_kept.size();
        // The revision stays the last reported one: after one unreported edit there may be more.
    }
    m_changed = false;
}

void DocumentText::on_contents_change(int position, int removed, int added)
{
    const qsizetype length = m_document->characterCount() - 1;
    const int revisions = m_document->revision() - m_revision;
    const bool fits = length == m_length - removed + added && (revisions == 0 || revisions == 1);
    const bool is_patched = m_patched_in_block && revisions == 0 && length == m_length;
    m_patched_in_block = false;
    m_revision = m_document->revision();
    m_length = length;
    const int undone_before = std::exchange(m_undone, m_document->availableRedoSteps());
    if (is_patched || !m_is_kept)
        return;
    if (!fits || undone_before > 0 || m_undone > 0) // undo and redo may report less than they change
        return forget();

    if (!m_changed) {
        m_same_before = m_same_behind = m_kept.size();
        m_changed = true;
    }
    m_same_before = std::min<qsizetype>(m_same_before, position);
    // A report may count the end of the last paragraph, which is no part of the text.
    m_same_behind = std::clamp<qsizetype>(length - position - added, 0, m_same_behind);
}

} // namespace my_classes
