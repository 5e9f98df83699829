// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/diagnostic_output.h>

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

#include <cstdio>

namespace my_classes {

/// Words as a bracketed, comma-separated list of quoted words.
inline QString quoted_list(const QStringList &words)
{
    if (words.isEmpty())
        return QStringLiteral("[]");
    return QStringLiteral("['") + words.join(QStringLiteral("', '")) + QStringLiteral("']");
}

/// Writes a developer's diagnostic line to standard output: the values in order, a blank between two, flushed, UTF-8.
template<typename First, typename... Rest>
void trace(const First &first, const Rest &...rest)
{
    if (!diagnostic_output())
        return;
    QTextStream line(stdout);
    line << first;
    ((line << ' ' << rest), ...);
    line << Qt::endl;
}

} // namespace my_classes
