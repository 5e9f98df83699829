// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/icons.h"

#include <my_classes/app_directory.h>

#include <QtCore/QDir>

namespace my_classes {

QIcon icon(const QString &file_name)
{
    const QChar separator = QDir::separator();
    return QIcon(app_directory + separator + QStringLiteral("icons") + separator + file_name);
}

} // namespace my_classes
