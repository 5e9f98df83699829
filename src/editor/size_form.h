// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
QT_END_NAMESPACE

namespace my_classes {

/// What the dialogs that ask for two numbers have in common: two labelled fields for ASCII digits, the first of them
/// focused, and the buttons that accept and reject. All are owned by the dialog.
struct SizeForm
{
    Q_DECLARE_TR_FUNCTIONS(my_classes::SizeForm)

public:
    explicit SizeForm(QDialog *dialog);

    /// Sets all texts; to be called again when the language changes.
    void set_texts(const QString &first_text, const QString &second_text) const;

    QLabel *first_label;
    QLabel *second_label;
    QLineEdit *first;
    QLineEdit *second;
    QPushButton *ok;
    QPushButton *cancel;
};

/// The number that a field of the form shows; nothing if it is empty or larger than an int.
std::optional<int> entered_number(const QString &text);

/// Runs a dialog without parent, modally and over the window of `owner`. True if it was accepted and `owner` is still
/// there; the dialog closes when `owner` is destroyed.
bool accepted_over(QWidget *owner, QDialog *dialog);

} // namespace my_classes
