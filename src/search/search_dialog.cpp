// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/search_dialog.h>

#include <QtGui/QCloseEvent>

namespace my_classes {

SearchDialog::SearchDialog(QTextEdit *text_area)
    : editor(text_area)
{
}
SearchDialog::~SearchDialog() = default;
void SearchDialog::init_ui() {}
void SearchDialog::find_next() {}
void SearchDialog::restart_search() {}
void SearchDialog::find_all_matches() {}
void SearchDialog::clear_highlight() {}
void SearchDialog::highlight_match() {}
QTextCharFormat SearchDialog::highlight_format() const
{
    return {};
}
void SearchDialog::navigate_to_match(int) {}
void SearchDialog::next_match() {}
void SearchDialog::previous_match() {}
void SearchDialog::replace() {}
void SearchDialog::replace_all() {}
void SearchDialog::clear_selection() {}
void SearchDialog::closeEvent(QCloseEvent *) {}

} // namespace my_classes
