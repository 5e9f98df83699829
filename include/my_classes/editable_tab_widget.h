// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace my_classes {

/// Tab widget whose titles are renamed in place and kept unique, and whose tabs close after confirmation.
class MY_CLASSES_EXPORT EditableTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit EditableTabWidget(QWidget *parent = nullptr);

    void editTabTitle(int index);
    void finishEditTabTitle(int index);
    void handle_tab_moved(int from_index, int to_index);
    void closeTab(int index);
    bool isTabTitleUnique(const QString &title, int current_index) const;
    QMessageBox::StandardButton msgbox_confirm(const QString &msg);

    bool eventFilter(QObject *obj, QEvent *event) override;

    /// The field open over a title, or null.
    QLineEdit *line_edit = nullptr;

Q_SIGNALS:
    void tab_moved(int from_index, int to_index);
    void tab_deleted(const QString &title);

protected:
    bool event(QEvent *event) override;
};

} // namespace my_classes
