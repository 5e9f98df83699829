// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/pictures.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>

namespace my_classes {

namespace {

constexpr int k_most_megabytes = 512;
constexpr int k_longest_side = 1'000'000; // libpng's own limit

QtMessageHandler next_handler = nullptr;
thread_local bool is_quiet = false;

void drop_warnings_of_quiet_thread(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!is_quiet || type != QtWarningMsg)
        next_handler(type, context, message);
}

/// While it lives, the decoders of this thread write no warnings (the null image tells the caller), and may use more
/// memory than Qt's default, which a photograph of 48 megapixels exceeds.
class QuietCodecs
{
public:
    QuietCodecs()
        : m_limit(QImageReader::allocationLimit())
    {
        if (m_limit > 0 && m_limit < k_most_megabytes)
            QImageReader::setAllocationLimit(k_most_megabytes);
        // In two steps, so that another thread that writes meanwhile finds a handler to go on to.
        next_handler = qInstallMessageHandler(nullptr);
        qInstallMessageHandler(drop_warnings_of_quiet_thread);
        is_quiet = true;
    }
    ~QuietCodecs()
    {
        is_quiet = false;
        qInstallMessageHandler(next_handler);
        QImageReader::setAllocationLimit(m_limit);
    }
    Q_DISABLE_COPY_MOVE(QuietCodecs)

private:
    const int m_limit; // megabytes; 0 means none
};

} // namespace

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
