// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

/// Moves the list item that the caret stands at the start of `steps` levels in, or out if negative, as one undo step.
/// False, with nothing done, if there is none or no such level.
bool change_list_level(QTextEdit *text_edit, int steps);

} // namespace my_classes
