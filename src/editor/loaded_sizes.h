// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QFont;
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

/// Takes the size of `font` off all text that has it as a format of its own, so that this text follows the default
/// font. That is no undo step.
void forget_size_of(const QFont &font, QTextDocument *document);

/// The short way, before it is loaded: `html` as Qt writes it without the size that its body names. Null if that is not
/// the size of `font`, or if a part of the text may have the same size as a format of its own.
QString without_size_of(const QFont &font, const QString &html);

} // namespace my_classes
