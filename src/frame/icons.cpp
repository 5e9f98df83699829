// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/icons.h"

#include <my_classes/app_directory.h>

#include <QtCore/QDir>

namespace my_classes {

QIcon icon(const QString &file_name)
{
    const QChar separator = QDir::separator();
    const QString path = app_directory + separator + QStringLiteral("icons") + separator + file_name;
    // Told the format, Qt does not load every image plug-in to ask whose the file is.
    return QIcon(QPixmap(path, "PNG"));
}

} // namespace my_classes
