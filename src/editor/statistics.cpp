// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/document_statistics.h"

#include <my_classes/custom_text_editor.h>

#include <QtCore/QLocale>
#include <QtGui/QAction>
#include <QtWidgets/QLabel>

namespace my_classes {

namespace {

/// Decimal with a comma between groups of three digits, whatever the system's locale.
QString grouped(int number)
{
    static const QLocale comma_grouping(QLocale::English, QLocale::UnitedStates);
    return comma_grouping.toString(number);
}

} // namespace

void CustomTextEditor::count_words()
{
    const QPointer<CustomTextEditor> here(this); // it may tell of another document
    follow_document();
    if (!here)
        return;
    const bool selected = has_selected_text();
    const TextCounts counts =
        selected ? m_statistics->of_selection(text_edit->textCursor()) : m_statistics->of_document();
    clear_formatting_action->setEnabled(selected && !is_read_only()); // selected cells may just have been emptied
    if (here)
        show_counts({counts.sentences, counts.words, counts.characters, selected});
}

void CustomTextEditor::show_counts(const EditorCounts &counts)
{
    QString line;
    if (counts.words > 0) {
        // One form for every number without a translator; catalogues have more.
        const QStringList parts{tr("%1 sentences", nullptr, counts.sentences).arg(grouped(counts.sentences)),
                                tr("%1 words", nullptr, counts.words).arg(grouped(counts.words)),
                                tr("%1 characters", nullptr, counts.characters).arg(grouped(counts.characters))};
        line = lang.isEmpty() ? QString() : tr("Lang: %1 | ").arg(lang.toUpper());
        line += (counts.of_selection ? tr("Selected: ") : QString()) + parts.join(QStringLiteral(" | "));
    }
    if (line != word_count_label->text())
        word_count_label->setText(line);
    if (m_counts == counts)
        return;
    m_counts = counts;
    tell([&] { Q_EMIT counts_changed(counts); });
}

EditorCounts CustomTextEditor::counts() const
{
    return m_counts;
}

int CustomTextEditor::count_sentences(const QString &text) const
{
    return count_text(text).sentences;
}

void CustomTextEditor::count_lines(const QVariant &) {}

} // namespace my_classes
