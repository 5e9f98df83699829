// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <optional>

namespace my_classes {

/// While it lives, Qt's picture decoders write no warnings in this thread (a null image tells enough), and they may use
/// more memory than by default, which a photograph of 48 megapixels exceeds. GUI thread only.
class QuietCodecs
{
public:
    QuietCodecs();
    ~QuietCodecs();
    Q_DISABLE_COPY_MOVE(QuietCodecs)

private:
    const int m_limit; // megabytes; 0 means none
};

/// Whether a picture of that size, in pixels, can be built: at most 512 megabytes at 32 bits per pixel, and no side
/// longer than a PNG file can hold.
bool is_buildable_picture(qint64 width, qint64 height);

/// The picture in the file; a null image if there is none to be read.
QImage read_picture(const QString &file_path);

/// The same for the contents of a file.
QImage decode_picture(const QByteArray &contents);

/// The picture as PNG; empty for a null image, nothing if it cannot be encoded.
std::optional<QByteArray> encode_picture(const QImage &picture);

} // namespace my_classes
