// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <optional>

namespace my_classes {

/// Whether a picture of that size, in pixels, can be built: at most 512 megabytes at 32 bits per pixel, and no side
/// longer than a PNG file can hold.
bool is_buildable_picture(qint64 width, qint64 height);

/// The picture in the file; a null image if there is none to be read. Larger pictures than Qt's own limit allows are
/// read, and Qt's decoders write no warnings.
QImage read_picture(const QString &file_path);

/// The same for the contents of a file.
QImage decode_picture(const QByteArray &contents);

/// The picture as PNG; empty for a null image, nothing if it cannot be encoded.
std::optional<QByteArray> encode_picture(const QImage &picture);

} // namespace my_classes
