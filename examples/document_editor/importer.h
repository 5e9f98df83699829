// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document_file.h"

namespace document_editor {

/// The patterns of what import_section() reads, for a file dialog.
QString import_filter();
/// The text of an HTML, Markdown or plain text file as a section, named as the file. Throws FileError.
Section import_section(const QString &path);

} // namespace document_editor
