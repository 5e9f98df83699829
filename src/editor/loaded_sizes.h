// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QFont;
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

/// Takes the size of `font` off all text that has it as a format of its own, so that this text follows the default
/// font. That is no undo step.
void forget_size_of(const QFont &font, QTextDocument *document);

} // namespace my_classes
