// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QDialog>

#include <utility>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace my_classes {

/// Asks for the rows and columns of a new table. Both fields take ASCII digits only and may be empty.
class MY_CLASSES_EXPORT TableDimensionInputDialog : public QDialog
{
    Q_OBJECT

public:
    /// Both fields are empty at first.
    explicit TableDimensionInputDialog(QWidget *parent = nullptr);

    /// The two texts as typed: rows, columns.
    std::pair<QString, QString> get_inputs() const;

    QLineEdit *input1 = nullptr;          ///< rows
    QLineEdit *input2 = nullptr;          ///< columns
    QPushButton *ok_button = nullptr;     ///< accepts
    QPushButton *cancel_button = nullptr; ///< rejects
};

} // namespace my_classes
