// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace my_spellchecker {

/// Equal for all words that an added or ignored word holds for: other capitals, decomposed forms, other apostrophes.
QString comparable(const QString &word);

QString with_straight_apostrophes(QString word);

enum class Capitals { none, first, all, mixed };

/// Which letters of `word` are capitals. A single letter that is one counts as the first.
Capitals capitals_of(const QString &word);

/// `word` with its first letter or all of them as capitals; as it is for none and mixed.
QString with_capitals(const QString &word, Capitals capitals);

/// Whether one letter more, less or other, or two exchanged, make `word` of `other`.
bool is_one_slip_from(QStringView word, QStringView other);

} // namespace my_spellchecker
