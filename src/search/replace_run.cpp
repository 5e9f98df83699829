// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "search/replace_run.h"

#include "frame/diagnostics.h"
#include "search/document_text.h"

#include <my_classes/search_dialog.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QProgressDialog>

#include <algorithm>
#include <utility>

namespace my_classes {

namespace {

constexpr qint64 k_patience = 1000;     // milliseconds of work until the progress dialog appears
constexpr qint64 k_look_interval = 100; // milliseconds of work between two looks at it
constexpr qint64 k_look_share = 4;      // laying out and painting gets a fifth of the time,
constexpr qint64 k_answer_time = 800;   // or up to a half, so that Stop is seen within a second

} // namespace

ReplaceRun::ReplaceRun(SearchDialog *dialog)
    : m_dialog(dialog)
    , m_next_look(k_patience)
{
    m_dialog->m_run = this;
    m_clock.start();
}

ReplaceRun::~ReplaceRun()
{
    if (!m_is_paused)
        pause();
    delete m_progress;
}

bool ReplaceRun::goes_on(int count)
{
    if (!m_stopped && m_worked + m_clock.elapsed() >= m_next_look) {
        QElapsedTimer look;
        look.start();
        pause();
        if (m_dialog)
            show_progress(count);
        resume();
        const qint64 looked = look.elapsed();
        const qint64 work = std::min(k_look_share * looked, k_answer_time - looked);
        m_next_look = m_worked + std::max({k_look_interval, looked, work});
    }
    return !m_stopped && m_dialog && m_dialog->editor && !m_dialog->editor->isReadOnly();
}

void ReplaceRun::show_progress(int count)
{
    if (!m_progress) {
        m_progress = new QProgressDialog({}, SearchDialog::tr("Stop"), 0, 0, m_dialog);
        m_progress->setWindowTitle(SearchDialog::tr("Replace All"));
        m_progress->setWindowModality(Qt::ApplicationModal);
        QObject::connect(m_progress, &QProgressDialog::canceled, m_progress, [this] { stop(); });
    }
    m_progress->setLabelText(SearchDialog::tr("%1 matches replaced").arg(count));
    m_progress->show();
    QCoreApplication::processEvents();
}

void ReplaceRun::pause()
{
    m_worked += m_clock.elapsed();
    m_is_paused = true;
    if (!m_lines.isEmpty())
        trace(std::exchange(m_lines, {}));
    if (m_dialog)
        m_dialog->m_run = nullptr;
    if (m_block.isNull())
        return;

    m_edited = m_block.document();
    m_revision = m_edited->revision();
    // The block's end reports the change; whoever hears of it may delete anything.
    std::exchange(m_block, {}).endEditBlock();
    if (!m_dialog || !m_dialog->editor)
        return;
    const QTextCursor shown = std::exchange(m_cursor, {});
    if (m_dialog->editor->document() == m_edited && m_edited)
        m_dialog->editor->setTextCursor(shown);
    if (m_dialog && m_dialog->editor && !m_selected_word.isEmpty()) {
        m_dialog->matches = find_whole_words(m_selected_word, m_dialog->m_text->text());
        if (m_dialog->matches)
            m_dialog->matches->next();
    }
}

void ReplaceRun::resume()
{
    m_is_paused = false;
    m_clock.start();
    if (!m_dialog)
        return;
    m_dialog->m_run = this;
    const QTextDocument *document = m_dialog->editor ? m_dialog->editor->document() : nullptr;
    if (!m_edited || document != m_edited || m_edited->revision() != m_revision) { // somebody else was at it
        m_edited.clear();
        m_searched_until = 0;
        m_first_word.reset();
    }
}

QTextCursor ReplaceRun::cursor() const
{
    return m_block.isNull() ? m_dialog->editor->textCursor() : m_cursor;
}

void ReplaceRun::set_cursor(const QTextCursor &cursor)
{
    if (m_block.isNull()) {
        m_block = cursor;
        // One undo step, unless other edits came in between: theirs must not be undone along with it.
        if (m_edited)
            m_block.joinPreviousEditBlock();
        else
            m_block.beginEditBlock();
    }
    m_cursor = cursor;
}

qsizetype ReplaceRun::find(const QStringMatcher &wanted, qsizetype from)
{
    DocumentText &text = *m_dialog->m_text;
    const qsizetype start = std::max(from, m_searched_until);
    const qsizetype found = wanted.indexIn(text.tail(start));
    m_searched_until = found < 0 ? text.size() : start + found;
    return found < 0 ? -1 : m_searched_until;
}

std::optional<qsizetype> ReplaceRun::first_whole_word(const QString &pattern)
{
    DocumentText &text = *m_dialog->m_text;
    m_selected_word.clear();
    if (!m_first_word || m_first_word->pattern() != pattern) {
        m_first_word.reset();
        if (!FirstWholeWord::can_keep(pattern, text.text()))
            return {};
        m_first_word.emplace(pattern);
    }
    const qsizetype found = m_first_word->find(text);
    if (found >= 0)
        m_selected_word = pattern;
    return found;
}

void ReplaceRun::keep_line(const QString &line)
{
    if (!m_lines.isEmpty())
        m_lines += u'\n';
    m_lines += line;
}

void ReplaceRun::replaced(int position, int removed, int added, const QString &text)
{
    m_dialog->m_text->replaced_in_block(position, removed, added);
    // New occurrences overlap with the new text, and are no longer than what was removed.
    m_searched_until = std::min<qsizetype>(m_searched_until, std::max(position - removed + 1, 0));
    if (m_first_word && text.isValidUtf16())
        m_first_word->replaced(position, removed, added);
    else
        m_first_word.reset();
}

} // namespace my_classes
