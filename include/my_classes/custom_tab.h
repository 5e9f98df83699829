// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <optional>
#include <type_traits>

namespace my_classes {

class CustomTextEditor;

/// One page of a tabbed document: owns one editor and passes its content interface on.
class MY_CLASSES_EXPORT CustomTab : public QWidget
{
    Q_OBJECT

public:
    /// Family and size (in points) are both given or both absent; without them the editor's own font applies.
    /// `lang` is the spelling language; throws as MySpellChecker does.
    explicit CustomTab(const std::optional<QString> &editor_font = {}, const std::optional<int> &editor_fontsize = {},
                       const QString &lang = QStringLiteral("en"));

    /// For forms: the editor's default font, and the language "en", or none where that has no dictionary. Does not
    /// throw.
    template<typename Parent, typename = std::enable_if_t<std::is_convertible_v<Parent, QWidget *>>>
    explicit CustomTab(Parent parent)
        : CustomTab(ForForms(0), parent)
    {
    }

    /// Makes an editor with the font and the language of the tab; it is a child of the tab. The constructor calls it,
    /// for `editor`: called again it makes one more, which nobody shows.
    CustomTextEditor *create_editor();
    /// Emits text_changed().
    void editor_text_changed();

    /// This and the next six are those of `editor`, of the same names.
    QString get_html_content() const;
    /// As CustomTextEditor::get_text_content().
    QString get_text_content() const;
    /// As CustomTextEditor::set_html_content().
    void set_html_content(const QString &content);
    /// As CustomTextEditor::set_text_content().
    void set_text_content(const QString &content);
    /// As CustomTextEditor::get_selected_text().
    QString get_selected_text() const;
    /// As CustomTextEditor::insert_after_selection().
    void insert_after_selection(const QString &text);
    /// As CustomTextEditor::replace_selected_text().
    void replace_selected_text(const QString &text);

    /// As the editor's, and keeps `lang` in step.
    void set_lang(const QString &lang);

    /// The spelling language. Assigning it changes nothing else: use set_lang().
    QString lang;
    /// The font family that the editor was made with. Assigning it changes nothing.
    std::optional<QString> editor_font;
    /// The size in points that the editor was made with. Assigning it changes nothing.
    std::optional<int> editor_fontsize;
    /// The editor, a child of the tab; never null.
    CustomTextEditor *editor = nullptr;

Q_SIGNALS:
    /// Always carries "Text changed": ask the content interface for the text. The host may delete the tab for it, as
    /// the editor for CustomTextEditor::counts_changed().
    void text_changed(const QString &message);

private:
    struct ForForms
    {
        explicit ForForms(int) {} // so that {} is none
    };
    CustomTab(ForForms, QWidget *parent);
};

} // namespace my_classes
