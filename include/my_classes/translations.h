// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QLocale>

namespace my_classes {

/// Shows the library's texts in the language of `locale`, in place of those of an earlier call; there are catalogues
/// for English and Spanish. Widgets that are there already change at once. False, and the texts as they are without any
/// catalogue (most of them English, those of tabs and downloads Spanish), if there is none for `locale`. Needs the
/// application object, which owns what is loaded. GUI thread only.
MY_CLASSES_EXPORT bool install_translation(const QLocale &locale = QLocale());

} // namespace my_classes
