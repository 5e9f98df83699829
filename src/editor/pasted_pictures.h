// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QMimeData;
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

/// Whether `data`, from the clipboard or a drag, offers pictures, as data or as local files. Opens no file.
bool offers_pictures(const QMimeData *data);

/// Embeds the pictures that `data` offers at the caret, no wider than the text, as one undo step. False, with nothing
/// inserted, if it is rather to be taken as text: it offers text along with a picture, or not only pictures.
bool insert_pictures(QTextEdit *text_edit, const QMimeData *data);

} // namespace my_classes
