// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/language_for_forms.h"

#include <my_classes/custom_tab.h>
#include <my_classes/custom_text_editor.h>

#include <QtGui/QFont>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace my_classes {

using namespace Qt::StringLiterals;

CustomTab::CustomTab(const std::optional<QString> &font_family, const std::optional<int> &font_size,
                     const QString &language)
    : lang(language)
    , editor_font(font_family)
    , editor_fontsize(font_size)
{
    editor = create_editor(); // first, for it may throw
    auto *column = new QVBoxLayout;
    connect(editor->text_edit, &QTextEdit::textChanged, this, &CustomTab::editor_text_changed);
    connect(editor, &CustomTextEditor::lang_changed, this, [this](const QString &now) { lang = now; });
    column->addWidget(editor);
    setLayout(column);
    setFocusProxy(editor);
}

CustomTab::CustomTab(ForForms, QWidget *parent)
    : CustomTab(std::nullopt, std::nullopt, language_for_forms())
{
    setParent(parent);
}

CustomTextEditor *CustomTab::create_editor()
{
    std::optional<QFont> font;
    if (editor_font)
        font = QFont(*editor_font, editor_fontsize.value_or(-1)); // -1: the family's default size
    return new CustomTextEditor(font, this, lang);
}

void CustomTab::editor_text_changed()
{
    editor->tell([this] { Q_EMIT text_changed(u"Text changed"_s); });
}

QString CustomTab::get_html_content() const
{
    return editor->get_html_content();
}

QString CustomTab::get_text_content() const
{
    return editor->get_text_content();
}

void CustomTab::set_html_content(const QString &content)
{
    editor->set_html_content(content);
}

void CustomTab::set_text_content(const QString &content)
{
    editor->set_text_content(content);
}

QString CustomTab::get_selected_text() const
{
    return editor->get_selected_text();
}

void CustomTab::insert_after_selection(const QString &text)
{
    editor->insert_after_selection(text);
}

void CustomTab::replace_selected_text(const QString &text)
{
    editor->replace_selected_text(text);
}

void CustomTab::set_lang(const QString &language)
{
    editor->set_lang(language);
}

} // namespace my_classes
