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

#include <utility>

namespace my_classes {

using namespace Qt::StringLiterals;

SizeForm::SizeForm(QDialog *dialog)
    : first_label(new QLabel)
    , second_label(new QLabel)
    , first(new QLineEdit)
    , second(new QLineEdit)
    , ok(new QPushButton)
    , cancel(new QPushButton)
{
    const auto *digits = new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), dialog);
    auto *column = new QVBoxLayout;
    for (const auto &[label, input] : {std::pair(first_label, first), std::pair(second_label, second)}) {
        label->setBuddy(input);
        input->setValidator(digits);
        auto *row = new QHBoxLayout;
        row->addWidget(label);
        row->addWidget(input);
        column->addLayout(row);
    }

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    column->addLayout(buttons);
    dialog->setLayout(column);

    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    first->setFocus();
}

void SizeForm::set_texts(const QString &first_text, const QString &second_text) const
{
    first_label->setText(first_text);
    second_label->setText(second_text);
    const int label_width = qMax(first_label->sizeHint().width(), second_label->sizeHint().width());
    const QString hint = tr("Write an integer value");
    for (const auto &[label, input] : {std::pair(first_label, first), std::pair(second_label, second)}) {
        label->setMinimumWidth(label_width); // the fields stand below each other
        input->setPlaceholderText(hint);
        input->setMinimumWidth(input->fontMetrics().horizontalAdvance(hint) + input->sizeHint().height());
        input->setAccessibleName(label->text());
    }
    ok->setText(tr("Ok"));
    cancel->setText(tr("Cancel"));
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
