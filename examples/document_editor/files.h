// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
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

/// Called between the steps of a long work with what is done, of about `all`; false stops it.
using Progress = std::function<bool(int done, int all)>;

// Whole files, from any thread. These throw FileError.

/// What it has so far if it is stopped.
QByteArray read_file(const QString &path, const Progress &progress = {});
/// All or nothing: whatever happens meanwhile, the file is the old one or the new one.
void write_file(const QString &path, const QByteArray &bytes);

} // namespace document_editor
