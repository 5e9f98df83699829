// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtGui/QIcon>

namespace my_classes {

/// The icon of that file in the library's "icons" directory; an empty icon if there is none.
QIcon icon(const QString &file_name);

} // namespace my_classes
