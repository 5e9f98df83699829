// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QLoggingCategory>

namespace my_classes {

Q_DECLARE_LOGGING_CATEGORY(log_editor)

} // namespace my_classes
