// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/size_form.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QRegularExpressionValidator>
#include <QtGui/QWindow>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace my_classes {

using namespace Qt::StringLiterals;

SizeForm::SizeForm(QDialog *dialog, const QString &first_label, const QString &second_label)
    : first(new QLineEdit)
    , second(new QLineEdit)
    , ok(new QPushButton(tr("Ok")))
    , cancel(new QPushButton(tr("Cancel")))
{
    const auto *digits = new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), dialog);
    auto *column = new QVBoxLayout;
    const QString hint = tr("Write an integer value");
    QLabel *labels[] = {new QLabel(first_label), new QLabel(second_label)};
    const int label_width = qMax(labels[0]->sizeHint().width(), labels[1]->sizeHint().width());
    const auto add_row = [&](QLabel *label, QLineEdit *input) {
        label->setBuddy(input);
        label->setMinimumWidth(label_width); // the fields stand below each other
        input->setPlaceholderText(hint);
        input->setMinimumWidth(input->fontMetrics().horizontalAdvance(hint) + input->sizeHint().height());
        input->setValidator(digits);
        input->setAccessibleName(label->text());
        auto *row = new QHBoxLayout;
        row->addWidget(label);
        row->addWidget(input);
        column->addLayout(row);
    };
    add_row(labels[0], first);
    add_row(labels[1], second);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    column->addLayout(buttons);
    dialog->setLayout(column);

    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    first->setFocus();
}

std::optional<int> entered_number(const QString &text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

bool accepted_over(QWidget *owner, QDialog *dialog)
{
    const QPointer<QWidget> still_here(owner);
    QObject::connect(owner, &QObject::destroyed, dialog, &QDialog::reject);
    // Without a widget for a parent it is the native windows that tell the dialog where it belongs.
    dialog->winId();
    dialog->windowHandle()->setTransientParent(owner->window()->windowHandle());
    const bool is_accepted = dialog->exec() == QDialog::Accepted;
    // What follows may take seconds: by then the dialog has to be gone from the screen.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return is_accepted && still_here;
}

} // namespace my_classes
