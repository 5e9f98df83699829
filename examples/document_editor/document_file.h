// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QtCore/QByteArray>

namespace document_editor {

// The file format, which FORMAT.md describes. From any thread.

QByteArray to_bytes(const Document &document);
/// Throws FileError if `bytes` are another program's, a newer version's, or damaged.
Document from_bytes(const QByteArray &bytes);
/// Whether `bytes` begin as a document does, of whatever version and state.
bool is_document(const QByteArray &bytes);

} // namespace document_editor
