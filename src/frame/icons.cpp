// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/icons.h"

#include <my_classes/app_directory.h>

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

namespace my_classes {

namespace {

constexpr double k_disabled_opacity = 0.4;

/// Grey, and faded into whatever lies behind: what Qt makes is lighter than the icon itself in a dark palette.
QPixmap disabled(const QPixmap &pixmap)
{
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(line[x]);
            line[x] = qRgba(grey, grey, grey, qRound(qAlpha(line[x]) * k_disabled_opacity));
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

QIcon icon(const QString &file_name)
{
    const QChar separator = QDir::separator();
    const QString path = app_directory + separator + QStringLiteral("icons") + separator + file_name;
    // Told the format, Qt does not load every image plug-in to ask whose the file is.
    const QPixmap pixmap(path, "PNG");
    QIcon icon(pixmap);
    if (!pixmap.isNull())
        icon.addPixmap(disabled(pixmap), QIcon::Disabled);
    return icon;
}

} // namespace my_classes
