// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpressionMatchIterator>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QDialog>
#include <QtWidgets/QTextEdit>

#include <optional>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace my_classes {

/// Find and replace in one text area. Modeless; belongs to nobody until the host gives it a parent or deletes it.
class MY_CLASSES_EXPORT SearchDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SearchDialog(QTextEdit *editor);
    ~SearchDialog() override;

    void init_ui();

    void find_next();
    void restart_search();

    void find_all_matches();
    void clear_highlight();
    void highlight_match();
    QTextCharFormat highlight_format() const;
    void navigate_to_match(int position);
    void next_match();
    void previous_match();

    void replace();
    void replace_all();
    void clear_selection();

    QPointer<QTextEdit> editor;
    QLineEdit *search_input = nullptr;
    QLineEdit *replace_input = nullptr;
    QPushButton *next_button = nullptr;
    QPushButton *replace_button = nullptr;
    QPushButton *replace_all_button = nullptr;
    std::optional<QRegularExpressionMatchIterator> matches;
    int search_index = 0;
    QList<int> search_results;
    int current_search_index = -1;

protected:
    void closeEvent(QCloseEvent *event) override;
};

} // namespace my_classes
