// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/icons.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QToolBar>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_smallest_size = 8; // points
constexpr int k_largest_size = 70;
constexpr int k_size_step = 2;

/// Appends actions to the tool bar, one line each.
class ToolbarBuilder
{
public:
    explicit ToolbarBuilder(CustomTextEditor *editor)
        : m_editor(editor)
    {
    }

    template<typename Receiver, typename Slot>
    QAction *action(const QString &icon_file, const QString &text, const QKeySequence &shortcut, Receiver *receiver,
                    Slot slot) const
    {
        auto *action = new QAction(icon(icon_file), text, m_editor);
        if (!shortcut.isEmpty()) {
            action->setShortcut(shortcut);
            // Two editors in one window would otherwise disable each other's.
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            m_editor->addAction(action);
        }
        QObject::connect(action, &QAction::triggered, receiver, slot);
        m_editor->toolbar->addAction(action);
        return action;
    }

    void separator() const { m_editor->toolbar->addSeparator(); }

private:
    CustomTextEditor *m_editor;
};

} // namespace

void CustomTextEditor::add_toolbar_buttons()
{
    const ToolbarBuilder add(this);
    const auto align = [this](Qt::Alignment alignment) { return [this, alignment] { set_alignment(alignment); }; };

    add.action(u"printer.png"_s, tr("Print"), Qt::CTRL | Qt::Key_P, this, &CustomTextEditor::print_document);
    add.separator();
    bold_action = add.action(u"edit-bold.png"_s, tr("Bold"), Qt::CTRL | Qt::Key_B, this, &CustomTextEditor::set_bold);
    italic_action =
        add.action(u"edit-italic.png"_s, tr("Italic"), Qt::CTRL | Qt::Key_I, this, &CustomTextEditor::set_italic);
    underline_action = add.action(u"edit-underline.png"_s, tr("Underline"), Qt::CTRL | Qt::Key_U, this,
                                  &CustomTextEditor::set_underline);
    add.separator();
    add.action(u"scissors.png"_s, tr("Cut"), {}, text_edit, &QTextEdit::cut);
    add.action(u"document-copy.png"_s, tr("Copy"), {}, text_edit, &QTextEdit::copy);
    add.action(u"clipboard-paste-document-text.png"_s, tr("Paste"), {}, text_edit, &QTextEdit::paste);
    add.action(u"paste-plain-text.png"_s, tr("Paste Unformatted"), {}, this, &CustomTextEditor::paste_plain_text);
    add.separator();
    add.action(u"undo.png"_s, tr("Undo"), QKeySequence::Undo, text_edit, &QTextEdit::undo);
    add.action(u"redo.png"_s, tr("redo"), QKeySequence::Redo, text_edit, &QTextEdit::redo);
    add.separator();
    add.action(u"select-all.png"_s, tr("Select All"), {}, text_edit, &QTextEdit::selectAll);
    add.action(u"binoculars.png"_s, tr("Search"), {}, this, &CustomTextEditor::search_text);
    add_font_boxes();
    add.separator();
    add.action(u"edit-alignment-left.png"_s, tr("Justify Left"), {}, this, align(Qt::AlignLeft));
    add.action(u"edit-alignment-center.png"_s, tr("Justify Center"), {}, this, align(Qt::AlignCenter));
    add.action(u"edit-alignment-right.png"_s, tr("Justify Right"), {}, this, align(Qt::AlignRight));
    add.action(u"edit-alignment-justify.png"_s, tr("Justify Full"), {}, this, align(Qt::AlignJustify));
    add.separator();
    add.action(u"numbered-list.png"_s, tr("Numbered List"), {}, this, &CustomTextEditor::insert_numbered_list);
    add.action(u"bullet-list.png"_s, tr("Bullet List Disc"), {}, this, &CustomTextEditor::insert_bullet_list_disc);
    add.action(u"bullet-list-square.png"_s, tr("Bullet List Square"), {}, this,
               &CustomTextEditor::insert_bullet_list_square);
    add.separator();
    clear_formatting_action = add.action(u"clear-formatting.png"_s, tr("Clear Selection Formatting"),
                                         QKeySequence(u"F8"_s), this, &CustomTextEditor::clear_formatting);
    add.separator();
    checkAction = add.action(u"spell-check.png"_s, tr("Check Spelling"), QKeySequence(u"F7"_s), this,
                             &CustomTextEditor::check_spelling);
    add_suggestions_box();
    correctAction = add.action(u"correct-word.png"_s, tr("Correct"), {}, this, &CustomTextEditor::correct_word);
    addWordAction = add.action(u"append2dictionary.png"_s, tr("Append to Dictionary"), {}, this,
                               &CustomTextEditor::add_word_to_dictionary);
    add.separator();
    add.action(u"image-file-add.png"_s, tr("Insert Image"), {}, this, &CustomTextEditor::insert_image);
    add.action(u"insert-table.png"_s, tr("Insert Table"), {}, this, &CustomTextEditor::insert_table);

    for (QAction *action : {bold_action, italic_action, underline_action})
        action->setCheckable(true);
    for (QAction *action : {clear_formatting_action, correctAction, addWordAction})
        action->setEnabled(false);
    // The items were made last; without this Shift+Tab in the text would leave the editor. Twice, because the order is
    // a ring in which the text follows the last item already: until the editor stands in a window with others.
    setTabOrder(toolbar->widgetForAction(toolbar->actions().constFirst()), text_edit);
    setTabOrder(toolbar->widgetForAction(toolbar->actions().constLast()), text_edit);
}

void CustomTextEditor::add_font_boxes()
{
    // Both only show the font at the cursor, unless a host enables and connects them.
    font_combo = new QFontComboBox;
    font_combo->setAccessibleName(tr("Font family"));
    font_combo->setCurrentText(editor_font.family());
    text_edit->setFont(editor_font);
    font_combo->setEnabled(false);
    toolbar->addWidget(font_combo);

    font_size_combo = new QComboBox;
    font_size_combo->setAccessibleName(tr("Font size"));
    for (int size = k_smallest_size; size <= k_largest_size; size += k_size_step)
        font_size_combo->addItem(QString::number(size));
    font_size_combo->setCurrentText(QString::number(editor_font.pointSize()));
    font_size_combo->setEnabled(false);
    toolbar->addWidget(font_size_combo);
}

void CustomTextEditor::add_suggestions_box()
{
    suggestionsComboBox = new QComboBox;
    suggestionsComboBox->setPlaceholderText(tr("Spellcheck Suggestions"));
    suggestionsComboBox->setEditable(false);
    suggestionsComboBox->setAccessibleName(tr("Spelling suggestions"));
    suggestionsComboBox->setFocusPolicy(Qt::TabFocus); // choosing by mouse leaves the focus in the text
    // As wide as its placeholder, and of one width whatever the suggestions.
    suggestionsComboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    toolbar->addWidget(suggestionsComboBox);
}

} // namespace my_classes
