// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/app_directory.h>
#include <my_classes/my_utils.h>

#include <QtCore/QDir>

namespace my_utils {

QString get_app_directory()
{
    return QDir::currentPath();
}

} // namespace my_utils

namespace my_classes {

const QString app_directory = my_utils::get_app_directory();

} // namespace my_classes
