// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/word_marker.h"

#include "spelling/changed_text.h"
#include "spelling/dictionary.h"
#include "spelling/word_tokenizer.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QLoggingCategory>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <stdexcept>

namespace my_classes {

Q_DECLARE_LOGGING_CATEGORY(log_spelling)

namespace {

constexpr int k_pause = 400;        // milliseconds between an edit and its check
constexpr int k_slice = 8;          // milliseconds of work between other events
constexpr int k_longest_word = 200; // code units
constexpr int k_few_words = 8;

bool is_apostrophe(QChar c)
{
    return c == u'\'' || c == QChar(0x2019);
}

bool is_in_word(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || is_apostrophe(c);
}

/// Whether the characters from `start` to before `end` may be of one word.
bool is_within_word(const QTextDocument *document, int start, int end)
{
    if (end - start > k_longest_word)
        return false;
    for (int i = start; i < end; ++i) {
        if (!is_in_word(document->characterAt(i)))
            return false;
    }
    return true;
}

/// Whether a paragraph may hold any of the words, which are patterns if they hold other signs.
bool may_contain_any(const QString &text, const QSet<QString> &words)
{
    return words.size() > k_few_words || std::any_of(words.begin(), words.end(), [&](const QString &word) {
               return text.contains(word) || !std::all_of(word.begin(), word.end(), is_in_word);
           });
}

} // namespace

bool touches(QStringView text, qsizetype start, qsizetype length, qsizetype position)
{
    const qsizetype end = start + length;
    return start <= position &&
           (position <= end || (position == end + 1 && position <= text.size() && is_apostrophe(text[end])));
}

WordMarker::WordMarker(CustomTextEditor *editor)
    : QObject(editor->highlighter)
    , m_editor(editor)
    , m_highlighter(editor->highlighter)
{
    m_highlighter->m_marker = this;
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &WordMarker::work);
    connect(editor->text_edit, &QTextEdit::cursorPositionChanged, this, &WordMarker::follow_caret);
    start_again();
}

WordMarker::~WordMarker()
{
    if (m_highlighter)
        m_highlighter->m_marker = nullptr;
}

void WordMarker::start_again()
{
    m_dictionary.reset();
    m_is_typing = false;
    m_paragraphs.reset(document() ? document()->blockCount() : 0);
    m_is_list_foreign = true;
    m_next_to_look_through = 0;
    m_timer.start(k_pause);
}

void WordMarker::list_was_replaced()
{
    m_is_list_foreign = true;
    stop_typing();
    m_timer.start(k_pause);
}

void WordMarker::leave_out(const QSet<QString> &words)
{
    for (const QString &word : words)
        remove_from_list(word);
    m_timer.start(0);
}

void WordMarker::edited(int position, int removed, int added)
{
    m_is_typing = types_at_caret(position, removed, added);
    m_caret = caret();
    const int last = std::min(position + added, document()->characterCount() - 1);
    const int first = document()->findBlock(position).blockNumber();
    const int new_count = document()->findBlock(last).blockNumber() - first + 1;
    const int growth = document()->blockCount() - m_paragraphs.count();
    const int old_count = new_count - growth;
    if (first < 0 || new_count < 1 || old_count < 1 || first + old_count > m_paragraphs.count())
        m_paragraphs.reset(document()->blockCount()); // some change was not told
    else
        m_paragraphs.replace(first, old_count, new_count);
    if (m_next_to_look_through > first)
        m_next_to_look_through = std::max(first, m_next_to_look_through + growth);
    if (!m_timer.isActive() || m_timer.interval() < k_pause) // whoever writes on need not pause for the check
        m_timer.start(k_pause);
}

/// Whether an edit is one that a person makes in a word: letters written up to the caret or taken away at it.
bool WordMarker::types_at_caret(int position, int removed, int added) const
{
    const int now = caret();
    const bool is_elsewhere = now < position || now > position + added;
    const bool keeps_text = removed == added && !m_editor->text_edit->overwriteMode(); // a change of formats
    if (is_elsewhere || keeps_text)
        return m_is_typing;
    if (document()->isRedoAvailable()) // what undo brings back is not being typed
        return false;
    return added == 0 || (position < now && is_within_word(document(), position, now));
}

bool WordMarker::is_typing()
{
    follow_caret();
    return m_is_typing;
}

void WordMarker::follow_caret()
{
    if (!m_is_typing || !document())
        return;
    const int now = caret();
    if (now == m_caret)
        return;
    if (!is_within_word(document(), std::min(now, m_caret), std::max(now, m_caret)))
        stop_typing();
    m_caret = now;
}

void WordMarker::stop_typing()
{
    if (!m_is_typing)
        return;
    m_is_typing = false;
    if (!document()) // it has been replaced by another
        return;
    const int paragraph = document()->findBlock(m_caret).blockNumber();
    if (paragraph < 0 || paragraph >= m_paragraphs.count())
        return;
    m_paragraphs.uncheck(paragraph);
    m_timer.start(k_pause);
}

int WordMarker::typed_position(const QTextBlock &block) const
{
    if (!m_is_typing || block.document() != m_editor->text_edit->document())
        return -1;
    const int position = caret();
    return block.contains(position) ? position - block.position() : -1;
}

int WordMarker::caret() const
{
    return m_editor->text_edit->textCursor().position();
}

QTextDocument *WordMarker::document() const
{
    return m_highlighter ? m_highlighter->document() : nullptr;
}

void WordMarker::work()
{
    if (!m_editor->spellchecker || !document() || document() != m_editor->text_edit->document())
        return; // until there is another language or document
    try {
        if (!work_for_a_while()) {
            m_timer.start(0);
            return;
        }
    } catch (const std::runtime_error &error) { // the dictionary has disappeared: it is tried again after the next edit
        qCWarning(log_spelling, "%s", error.what());
        return;
    }
    QSet<QString> news;
    news.swap(m_news);
    if (!news.isEmpty())
        Q_EMIT list_changed(news); // last: a listener may switch the marking off
}

/// Whether everything is done.
bool WordMarker::work_for_a_while()
{
    QElapsedTimer time;
    time.start();
    const std::shared_ptr<my_spellchecker::Dictionary> &dictionary = m_editor->spellchecker->m_dictionary;
    const int generation = dictionary->refresh();
    if (dictionary != m_dictionary || generation != m_generation)
        m_paragraphs.uncheck_all();
    m_dictionary = dictionary;
    m_generation = generation;
    if (m_paragraphs.count() != document()->blockCount()) // some change was not told
        m_paragraphs.reset(document()->blockCount());
    follow_caret();

    ChangedText changed(document());
    while (!time.hasExpired(k_slice)) {
        if (const int paragraph = m_paragraphs.next_unchecked(); paragraph >= 0) {
            check_paragraph(paragraph, &changed);
            continue;
        }
        settle_list();
        if (m_words_to_look_for.isEmpty())
            return true;
        look_through(m_next_to_look_through, &changed);
        if (++m_next_to_look_through >= m_paragraphs.count())
            m_words_to_look_for.clear();
    }
    return false;
}

void WordMarker::check_paragraph(int paragraph, ChangedText *changed)
{
    const QTextBlock block = document()->findBlockByNumber(paragraph);
    const QStringList words = misspelled_words(block);
    m_paragraphs.set_misspelled(paragraph, words);
    for (const QString &word : words)
        add_to_list(word);
    if (m_highlighter->mark(block))
        changed->add(block);
}

/// The words of a paragraph that the dictionary calls misspelled, without the one being typed.
QStringList WordMarker::misspelled_words(const QTextBlock &block) const
{
    const QString text = block.text();
    const int typed = typed_position(block);
    QStringList words;
    my_spellchecker::WordTokenizer tokenizer(text);
    for (QStringView word = tokenizer.next(); !word.isEmpty(); word = tokenizer.next()) {
        if (m_dictionary->is_misspelled(word) && !touches(text, word.data() - text.constData(), word.size(), typed))
            words.append(word.toString());
    }
    return words;
}

/// Makes the list that of the paragraphs' words, when all have been checked.
void WordMarker::settle_list()
{
    QSet<QString> gone = m_paragraphs.take_gone();
    if (m_is_list_foreign && !m_is_typing) { // the word being typed may be listed and is in no paragraph
        for (const QString &word : m_paragraphs.words())
            add_to_list(word);
        gone.unite(m_highlighter->misspelled);
        gone.removeIf([this](const QString &word) { return m_paragraphs.contain(word); });
        m_is_list_foreign = false;
    }
    for (const QString &word : std::as_const(gone))
        remove_from_list(word);
}

void WordMarker::add_to_list(const QString &word)
{
    if (m_highlighter->misspelled.contains(word) || m_editor->is_ignored(word))
        return;
    m_highlighter->add_to_list(word);
    m_words_to_look_for.insert(word);
    m_news.insert(word);
    m_next_to_look_through = 0;
}

void WordMarker::remove_from_list(const QString &word)
{
    if (!m_highlighter->misspelled.contains(word))
        return;
    m_highlighter->remove_from_list(word);
    m_words_to_look_for.insert(word);
    m_news.insert(word);
    m_next_to_look_through = 0;
}

void WordMarker::look_through(int paragraph, ChangedText *changed)
{
    const QTextBlock block = document()->findBlockByNumber(paragraph);
    if (may_contain_any(block.text(), m_words_to_look_for) && m_highlighter->mark(block))
        changed->add(block);
}

} // namespace my_classes
