// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_tab.h>

namespace my_classes {

CustomTab::CustomTab(const std::optional<QString> &, const std::optional<int> &, const QString &) {}
CustomTextEditor *CustomTab::create_editor()
{
    return nullptr;
}
void CustomTab::editor_text_changed() {}
QString CustomTab::get_html_content() const
{
    return {};
}
QString CustomTab::get_text_content() const
{
    return {};
}
void CustomTab::set_html_content(const QString &) {}
void CustomTab::set_text_content(const QString &) {}
QString CustomTab::get_selected_text() const
{
    return {};
}
void CustomTab::insert_after_selection(const QString &) {}
void CustomTab::replace_selected_text(const QString &) {}

} // namespace my_classes
