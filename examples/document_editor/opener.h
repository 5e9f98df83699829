// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document_file.h"

#include <optional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace document_editor {

/// Reads and checks a document on another thread, while the windows answer; the person may stop it, and has none then.
/// Throws FileError. `parent` may be gone afterwards.
std::optional<Document> read_document(const QString &path, QWidget *parent);

} // namespace document_editor
