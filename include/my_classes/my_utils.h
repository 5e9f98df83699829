// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>

namespace my_utils {

/// Absolute path of the directory that holds the library's "icons" directory.
///
/// It is looked for relative to the file that this code was loaded from (the shared library, or the program that
/// the static one is linked into), so that an installation may be moved, then where the build put it; the environment
/// variable MY_CLASSES_APP_DIRECTORY overrides it. Needs no application object, writes nothing, never fails: without
/// icons on disk it is the resource path ":/my_classes" in a static library, else the directory of that file.
MY_CLASSES_EXPORT QString get_app_directory();

} // namespace my_utils
