// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/log.h"
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

} // namespace

/// Makes the actions of commands and appends them to the tool bar, one line each.
class ToolbarBuilder
{
public:
    explicit ToolbarBuilder(CustomTextEditor *editor)
        : m_editor(editor)
    {
    }

    template<typename Receiver, typename Slot>
    QAction *action(EditorCommand command, const char *name, const char *text, const QString &icon_file,
                    const QKeySequence &shortcut, Receiver *receiver, Slot slot) const
    {
        QAction *action = m_editor->make_action(command, name, text);
        action->setIcon(icon(icon_file));
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

void CustomTextEditor::add_toolbar_buttons()
{
    if (!m_commands.empty()) {
        qCWarning(log_editor, "add_toolbar_buttons(): the tool bar is filled already");
        return;
    }
    add_text_buttons();
    add_font_boxes();
    add_paragraph_buttons();
    add_spelling_buttons();
    add_insertion_buttons();
    add_table_commands();

    for (QAction *action : {bold_action, italic_action, underline_action})
        action->setCheckable(true);
    for (QAction *action : {clear_formatting_action, correctAction, addWordAction})
        action->setEnabled(false);
    // The items were made last; without this Shift+Tab in the text would leave the editor. Twice, because the order is
    // a ring in which the text follows the last item already: until the editor stands in a window with others.
    setTabOrder(toolbar->widgetForAction(toolbar->actions().constFirst()), text_edit);
    setTabOrder(toolbar->widgetForAction(toolbar->actions().constLast()), text_edit);
    retranslate();
}

void CustomTextEditor::add_text_buttons()
{
    using Editor = CustomTextEditor;
    using Command = EditorCommand;
    const ToolbarBuilder add(this);
    add.action(Command::Print, "print", QT_TR_NOOP("Print"), u"printer.png"_s, Qt::CTRL | Qt::Key_P, this,
               &Editor::print_document);
    add.separator();
    bold_action = add.action(Command::Bold, "bold", QT_TR_NOOP("Bold"), u"edit-bold.png"_s, Qt::CTRL | Qt::Key_B, this,
                             &Editor::set_bold);
    italic_action = add.action(Command::Italic, "italic", QT_TR_NOOP("Italic"), u"edit-italic.png"_s,
                               Qt::CTRL | Qt::Key_I, this, &Editor::set_italic);
    underline_action = add.action(Command::Underline, "underline", QT_TR_NOOP("Underline"), u"edit-underline.png"_s,
                                  Qt::CTRL | Qt::Key_U, this, &Editor::set_underline);
    add.separator();
    add.action(Command::Cut, "cut", QT_TR_NOOP("Cut"), u"scissors.png"_s, {}, text_edit, &QTextEdit::cut);
    add.action(Command::Copy, "copy", QT_TR_NOOP("Copy"), u"document-copy.png"_s, {}, text_edit, &QTextEdit::copy);
    add.action(Command::Paste, "paste", QT_TR_NOOP("Paste"), u"clipboard-paste-document-text.png"_s, {}, text_edit,
               &QTextEdit::paste);
    add.action(Command::PasteUnformatted, "paste_unformatted", QT_TR_NOOP("Paste Unformatted"),
               u"paste-plain-text.png"_s, {}, this, &Editor::paste_plain_text);
    add.separator();
    add.action(Command::Undo, "undo", QT_TR_NOOP("Undo"), u"undo.png"_s, QKeySequence::Undo, text_edit,
               &QTextEdit::undo);
    add.action(Command::Redo, "redo", QT_TR_NOOP("redo"), u"redo.png"_s, QKeySequence::Redo, text_edit,
               &QTextEdit::redo);
    add.separator();
    add.action(Command::SelectAll, "select_all", QT_TR_NOOP("Select All"), u"select-all.png"_s, {}, text_edit,
               &QTextEdit::selectAll);
    add.action(Command::Search, "search", QT_TR_NOOP("Search"), u"binoculars.png"_s, {}, this, &Editor::search_text);
}

void CustomTextEditor::add_paragraph_buttons()
{
    using Editor = CustomTextEditor;
    using Command = EditorCommand;
    const ToolbarBuilder add(this);
    const auto align = [this](Qt::Alignment alignment) { return [this, alignment] { set_alignment(alignment); }; };
    add.separator();
    add.action(Command::JustifyLeft, "justify_left", QT_TR_NOOP("Justify Left"), u"edit-alignment-left.png"_s, {}, this,
               align(Qt::AlignLeft));
    add.action(Command::JustifyCenter, "justify_center", QT_TR_NOOP("Justify Center"), u"edit-alignment-center.png"_s,
               {}, this, align(Qt::AlignCenter));
    add.action(Command::JustifyRight, "justify_right", QT_TR_NOOP("Justify Right"), u"edit-alignment-right.png"_s, {},
               this, align(Qt::AlignRight));
    add.action(Command::JustifyFull, "justify_full", QT_TR_NOOP("Justify Full"), u"edit-alignment-justify.png"_s, {},
               this, align(Qt::AlignJustify));
    add.separator();
    add.action(Command::NumberedList, "numbered_list", QT_TR_NOOP("Numbered List"), u"numbered-list.png"_s, {}, this,
               &Editor::insert_numbered_list);
    add.action(Command::BulletListDisc, "bullet_list_disc", QT_TR_NOOP("Bullet List Disc"), u"bullet-list.png"_s, {},
               this, &Editor::insert_bullet_list_disc);
    add.action(Command::BulletListSquare, "bullet_list_square", QT_TR_NOOP("Bullet List Square"),
               u"bullet-list-square.png"_s, {}, this, &Editor::insert_bullet_list_square);
    add.separator();
    clear_formatting_action =
        add.action(Command::ClearFormatting, "clear_formatting", QT_TR_NOOP("Clear Selection Formatting"),
                   u"clear-formatting.png"_s, QKeySequence(u"F8"_s), this, &Editor::clear_formatting);
    add.separator();
}

void CustomTextEditor::add_spelling_buttons()
{
    using Editor = CustomTextEditor;
    using Command = EditorCommand;
    const ToolbarBuilder add(this);
    checkAction = add.action(Command::CheckSpelling, "check_spelling", QT_TR_NOOP("Check Spelling"),
                             u"spell-check.png"_s, QKeySequence(u"F7"_s), this, &Editor::check_spelling);
    add_suggestions_box();
    correctAction = add.action(Command::Correct, "correct", QT_TR_NOOP("Correct"), u"correct-word.png"_s, {}, this,
                               &Editor::correct_word);
    addWordAction = add.action(Command::AppendToDictionary, "append_to_dictionary", QT_TR_NOOP("Append to Dictionary"),
                               u"append2dictionary.png"_s, {}, this, &Editor::add_word_to_dictionary);
    add.separator();
}

void CustomTextEditor::add_insertion_buttons()
{
    const ToolbarBuilder add(this);
    add.action(EditorCommand::InsertImage, "insert_image", QT_TR_NOOP("Insert Image"), u"image-file-add.png"_s, {},
               this, &CustomTextEditor::insert_image);
    add.action(EditorCommand::InsertTable, "insert_table", QT_TR_NOOP("Insert Table"), u"insert-table.png"_s, {}, this,
               &CustomTextEditor::insert_table);
}

void CustomTextEditor::add_font_boxes()
{
    // Both only show the font at the cursor, unless a host enables and connects them.
    font_combo = new QFontComboBox;
    font_combo->setCurrentText(editor_font.family());
    text_edit->setFont(editor_font);
    font_combo->setEnabled(false);
    toolbar->addWidget(font_combo);

    font_size_combo = new QComboBox;
    for (int size = k_smallest_size; size <= k_largest_size; size += k_size_step)
        font_size_combo->addItem(QString::number(size));
    font_size_combo->setCurrentText(QString::number(editor_font.pointSize()));
    font_size_combo->setEnabled(false);
    toolbar->addWidget(font_size_combo);
}

void CustomTextEditor::add_suggestions_box()
{
    suggestionsComboBox = new QComboBox;
    suggestionsComboBox->setEditable(false);
    suggestionsComboBox->setFocusPolicy(Qt::TabFocus); // choosing by mouse leaves the focus in the text
    // As wide as its placeholder, and of one width whatever the suggestions.
    suggestionsComboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    toolbar->addWidget(suggestionsComboBox);
}

} // namespace my_classes
