// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

namespace my_classes {

/// Whether the library writes its diagnostic lines to standard output; on at first, for the whole process. Any thread.
MY_CLASSES_EXPORT void set_diagnostic_output(bool on);
MY_CLASSES_EXPORT bool diagnostic_output();

} // namespace my_classes
