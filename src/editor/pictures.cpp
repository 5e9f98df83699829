// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/pictures.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_most_megabytes = 512;
constexpr int k_longest_side = 1'000'000; // libpng's own limit

QtMessageHandler next_handler = nullptr;
thread_local int quiet_depth = 0;

void drop_decoders_warnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool is_decoders =
        type == QtWarningMsg && QLatin1StringView(context.category).startsWith("qt.gui.imageio"_L1);
    if (quiet_depth == 0 || !is_decoders)
        next_handler(type, context, message);
}

} // namespace

QuietCodecs::QuietCodecs()
    : m_limit(QImageReader::allocationLimit())
{
    if (m_limit > 0 && m_limit < k_most_megabytes)
        QImageReader::setAllocationLimit(k_most_megabytes);
    if (++quiet_depth > 1)
        return;
    // In two steps, so that another thread that writes meanwhile finds a handler to go on to.
    next_handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(drop_decoders_warnings);
}

QuietCodecs::~QuietCodecs()
{
    if (--quiet_depth == 0)
        qInstallMessageHandler(next_handler);
    QImageReader::setAllocationLimit(m_limit);
}

bool is_buildable_picture(qint64 width, qint64 height)
{
    constexpr qint64 most_pixels = qint64(k_most_megabytes) * 1024 * 1024 / 4;
    return width <= k_longest_side && height <= k_longest_side && width * height <= most_pixels;
}

QImage read_picture(const QString &file_path)
{
    // Opening a pipe would wait for somebody to write into it.
    if (!QFileInfo(file_path).isFile())
        return {};
    const QuietCodecs quiet;
    return QImage(file_path);
}

QImage decode_picture(const QByteArray &contents)
{
    const QuietCodecs quiet;
    return QImage::fromData(contents);
}

std::optional<QByteArray> encode_picture(const QImage &picture)
{
    const QuietCodecs quiet;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG") && !picture.isNull())
        return std::nullopt;
    return png;
}

} // namespace my_classes
