// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

/// An empty bordered table. Saved documents rely on the text as it is: how the document formats the table follows
/// from it. Neither number may be negative; 0 is allowed.
QString table_html(int rows, int columns);

/// A PNG picture, given as base64 text, embedded at the size that `width` and `height` say; they are written as they
/// are, also when they are empty.
QString image_html(QByteArrayView base64_png, const QString &width, const QString &height);

/// Inserts them at the caret, or in place of the selection, as one undo step. Who hears of it may delete the text area.
void insert_html(QTextEdit *text_edit, const QStringList &fragments);

} // namespace my_classes
