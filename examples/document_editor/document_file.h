// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"
#include "files.h"

namespace document_editor {

// The file format, which FORMAT.md describes. From any thread.

QByteArray to_bytes(const Document &document);
/// Throws ForeignFile, and FileError if `bytes` are a newer version's, or damaged.
Document from_bytes(const QByteArray &bytes);

/// Another program's.
class ForeignFile : public FileError
{
public:
    using FileError::FileError;
};

} // namespace document_editor
