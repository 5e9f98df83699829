// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace document_editor {

// Whole files, from any thread. Both throw FileError.

QByteArray read_file(const QString &path);
/// All or nothing: whatever happens meanwhile, the file is the old one or the new one.
void write_file(const QString &path, const QByteArray &bytes);

} // namespace document_editor
