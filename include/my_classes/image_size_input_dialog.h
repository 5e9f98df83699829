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

/// Asks for the size of an inserted image, in pixels. Both fields take ASCII digits only and may be empty.
class MY_CLASSES_EXPORT ImageSizeInputDialog : public QDialog
{
    Q_OBJECT

public:
    /// `w` and `h`, in pixels, stand in the fields at first.
    ImageSizeInputDialog(int w, int h, QWidget *parent = nullptr);

    /// The two texts as typed: width, height.
    std::pair<QString, QString> get_inputs() const;

    QLineEdit *input1 = nullptr;          ///< width
    QLineEdit *input2 = nullptr;          ///< height
    QPushButton *ok_button = nullptr;     ///< accepts
    QPushButton *cancel_button = nullptr; ///< rejects
};

} // namespace my_classes
