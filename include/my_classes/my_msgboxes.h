// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QMessageBox>

namespace my_msgboxes {

/// Asks `message` in a modal warning box titled `title` over `parent` (may be null) and returns the button pressed.
/// No is the default; Escape and closing the box mean No. The message is shown as plain text. `parent` may be
/// deleted while the box is open: the answer is then No.
MY_CLASSES_EXPORT QMessageBox::StandardButton confirm_warning_yes_no(QWidget *parent, const QString &title,
                                                                     const QString &message);

} // namespace my_msgboxes
