// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

#include <stdexcept>

namespace document_editor {

/// A file that could not be read or written, with a reason for a person.
class FileError : public std::runtime_error
{
public:
    explicit FileError(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }

    QString reason() const { return QString::fromUtf8(what()); }
};

} // namespace document_editor
