// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/my_spellchecker.h>

namespace my_classes {

/// "en", or empty for no spelling where that has no dictionary.
inline QString language_for_forms()
{
    const QString english = QStringLiteral("en");
    return my_spellchecker::MySpellChecker::is_available(english) ? english : QString();
}

} // namespace my_classes
