// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/my_msgboxes.h>

#include <QtCore/QPointer>

namespace my_msgboxes {

QMessageBox::StandardButton confirm_warning_yes_no(QWidget *parent, const QString &title, const QString &message)
{
    // On the heap: a parent that dies while the box is open takes the box with it.
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, title, message, QMessageBox::Yes | QMessageBox::No, parent));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    box->setEscapeButton(QMessageBox::No);
    const int answer = box->exec();
    if (!box)
        return QMessageBox::No;
    delete box.data();
    return answer == QMessageBox::Yes ? QMessageBox::Yes : QMessageBox::No;
}

} // namespace my_msgboxes
