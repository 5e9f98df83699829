// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>

namespace my_classes {

/// The directory that holds "icons", computed once when the library is loaded and constant from then on,
/// so that any thread may read it.
MY_CLASSES_EXPORT extern const QString app_directory;

} // namespace my_classes
