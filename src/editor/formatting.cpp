// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/log.h"
#include "editor/typing_format.h"
#include "editor/word_under_cursor.h"
#include "frame/diagnostics.h"
#include "frame/quiet.h"

#include <my_classes/custom_text_editor.h>

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QTextTable>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>

#include <cmath>
#include <utility>

namespace my_classes {

namespace {

constexpr int k_fallback_size = 12; // points

/// The checked state of the action or button that sent the signal; nothing if there is none.
std::optional<bool> checked_state(const QObject *sender, const char *operation)
{
    const QVariant checked = sender ? sender->property("checked") : QVariant();
    if (checked.typeId() == QMetaType::Bool)
        return checked.toBool();
    qCWarning(log_editor, "%s is called without a checkable sender: no format applied", operation);
    return {};
}

/// The selected ranges: one, or those of the selected cells.
QList<std::pair<int, int>> selected_ranges(const QTextCursor &cursor)
{
    const QTextTable *table = cursor.hasComplexSelection() ? cursor.currentTable() : nullptr;
    if (!table)
        return {{cursor.selectionStart(), cursor.selectionEnd()}};
    QList<std::pair<int, int>> ranges;
    int first_row = 0;
    int row_count = 0;
    int first_column = 0;
    int column_count = 0;
    cursor.selectedTableCells(&first_row, &row_count, &first_column, &column_count);
    for (int row = first_row; row < first_row + row_count; ++row) {
        for (int column = first_column; column < first_column + column_count; ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            ranges.append({cell.firstPosition(), cell.lastPosition()});
        }
    }
    return ranges;
}

/// Positions between `start` and `end` of images, of other objects and of the borders of cells, which are characters
/// with a format.
QList<int> object_positions(const QTextDocument *document, int start, int end)
{
    QList<int> positions;
    for (QTextBlock block = document->findBlock(start); block.isValid() && block.position() < end;
         block = block.next()) {
        const QString text = block.text();
        for (qsizetype i = text.indexOf(QChar::ObjectReplacementCharacter); i >= 0;
             i = text.indexOf(QChar::ObjectReplacementCharacter, i + 1)) {
            const int position = block.position() + static_cast<int>(i);
            if (position >= start && position < end)
                positions.append(position);
        }
        const int last = block.position() + block.length() - 1;
        const QChar separator = document->characterAt(last);
        if (last >= start && last < end && (separator == QChar(0xfdd0) || separator == QChar(0xfdd1)))
            positions.append(last);
    }
    return positions;
}

void set_format(QTextCursor cursor, int start, int end, const QTextCharFormat &format)
{
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    if (cursor.hasSelection())
        cursor.setCharFormat(format);
}

} // namespace

void CustomTextEditor::merge_format_on_selection(const QTextCharFormat &format)
{
    if (is_read_only())
        return;
    const QTextCursor cursor = text_edit->textCursor();
    QTextCursor word;
    if (!cursor.hasSelection()) {
        word = word_under_cursor(cursor);
        if (!word.hasSelection())
            m_typing_format->set(cursor, format);
        else if (m_typing_format->is_ended(cursor, word, format))
            word.clearSelection();
    }
    // Each place once: else Qt, undoing it, would leave the caret twice as far away, even behind the end.
    const QPointer<CustomTextEditor> here(this);
    if (word.hasSelection())
        word.mergeCharFormat(format);
    if (here)
        text_edit->mergeCurrentCharFormat(format); // the selection, or what is typed next
}

void CustomTextEditor::set_bold()
{
    const auto checked = checked_state(sender(), "set_bold");
    if (!checked)
        return;
    QTextCharFormat format;
    format.setFontWeight(*checked ? QFont::Bold : QFont::Normal);
    merge_format_on_selection(format);
}

void CustomTextEditor::set_italic()
{
    const auto checked = checked_state(sender(), "set_italic");
    if (!checked)
        return;
    QTextCharFormat format;
    format.setFontItalic(*checked);
    merge_format_on_selection(format);
}

void CustomTextEditor::set_underline()
{
    const auto checked = checked_state(sender(), "set_underline");
    if (!checked)
        return;
    QTextCharFormat format;
    format.setFontUnderline(*checked);
    merge_format_on_selection(format);
}

void CustomTextEditor::set_font_family(const QString &family)
{
    QTextCharFormat format;
    format.setFontFamilies({family});
    const QPointer<QTextEdit> area = text_edit; // which a listener may delete
    merge_format_on_selection(format);
    if (area)
        area->setFocus();
}

void CustomTextEditor::set_font_size(const QString &size)
{
    trace("Change font size", size);
    bool is_number = false;
    const double points = size.trimmed().toDouble(&is_number);
    apply_font_size(is_number ? points : std::nan(""));
}

void CustomTextEditor::set_font_size(double size)
{
    trace("Change font size", QString::number(size));
    apply_font_size(size);
}

void CustomTextEditor::apply_font_size(double points)
{
    if (!std::isfinite(points) || points <= 0) {
        qCWarning(log_editor, "The font size is no positive number: no format applied");
        return;
    }
    QTextCharFormat format;
    format.setFontPointSize(points);
    const QPointer<QTextEdit> area = text_edit; // which a listener may delete
    merge_format_on_selection(format);
    if (area)
        area->setFocus();
}

void CustomTextEditor::set_alignment(Qt::Alignment alignment)
{
    if (!is_read_only())
        text_edit->setAlignment(alignment);
}

void CustomTextEditor::set_line_spacing(double factor)
{
    if (is_read_only())
        return;
    QTextBlockFormat format;
    // 150 is none of Qt's named line-height types; stored documents carry the number, so it stays.
    format.setLineHeight(factor, 150);
    QTextCursor cursor = text_edit->textCursor();
    cursor.select(QTextCursor::Document);
    const QPointer<QTextEdit> here(text_edit);
    cursor.mergeBlockFormat(format);
    if (here) // who hears of it may delete it
        here->setTextCursor(cursor);
}

void CustomTextEditor::clear_formatting()
{
    QTextCursor cursor = text_edit->textCursor();
    if (!cursor.hasSelection() || is_read_only())
        return;
    const QTextCharFormat plain;
    cursor.beginEditBlock();
    const QList<std::pair<int, int>> ranges = selected_ranges(cursor);
    for (const auto &[start, end] : ranges) {
        int from = start;
        const QList<int> objects = object_positions(text_edit->document(), start, end);
        for (const int object : objects) { // an image is lost with its format, a wide cell its width
            set_format(cursor, from, object, plain);
            from = object + 1;
        }
        set_format(cursor, from, end, plain);
    }
    cursor.endEditBlock();
}

void CustomTextEditor::update_format_buttons()
{
    const QTextCharFormat format = text_edit->textCursor().charFormat();
    const std::pair<QPointer<QAction>, bool> buttons[] = {{bold_action, format.font().bold()},
                                                          {italic_action, format.fontItalic()},
                                                          {underline_action, format.fontUnderline()}};
    for (const auto &[button, is_on] : buttons) {
        if (button) // a listener may have deleted the editor
            button->setChecked(is_on);
    }
}

void CustomTextEditor::update_font_combos()
{
    const Quiet quiet(text_edit);
    const QPointer<CustomTextEditor> here(this);
    const QTextCharFormat format = text_edit->textCursor().charFormat();
    const QString family = format.font().family();
    if (!family.isEmpty() && family != font_combo->currentText())
        font_combo->setCurrentText(family);
    if (!here)
        return;
    double points = format.font().pointSizeF();
    if (points > 0 && !format.hasProperty(QTextFormat::FontPointSize)) // zoom changes the default size only
        points *= unzoomed_font().pointSizeF() / text_edit->document()->defaultFont().pointSizeF();
    const QString size = QString::number(points < 0 ? k_fallback_size : qRound(points));
    if (size != font_size_combo->currentText())
        font_size_combo->setCurrentText(size);
}

void CustomTextEditor::selection_changed()
{
    count_words();
}

// Undo moves the cursor without notice of the lost selection, and not even of the move where that is none.
void CustomTextEditor::follow_undo()
{
    const bool selected = text_edit->textCursor().hasSelection();
    if (selected == m_counts.of_selection)
        return;
    m_lost_selection = !selected;
    selection_changed();
}

// The text area would not notice either that the same is selected again.
void CustomTextEditor::follow_lost_selection()
{
    const QPointer<CustomTextEditor> here(this);
    follow_undo();
    if (!here || !m_lost_selection)
        return;
    m_lost_selection = false;
    text_edit->setTextCursor(text_edit->textCursor());
}

bool CustomTextEditor::has_selected_text() const
{
    const QTextCursor cursor = text_edit->textCursor();
    // Of empty table cells there is no text.
    return cursor.hasSelection() && (!cursor.hasComplexSelection() || !cursor.selectedText().isEmpty());
}

} // namespace my_classes
