// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files.h"

#include <QtCore/QList>

namespace document_editor {

class SectionPage;

/// The patterns of what export_pages() writes, for a file dialog.
QString export_filter();
/// Writes the pages into one file of the format that its suffix tells: PDF, ODT, HTML, Markdown, else plain text.
/// False if it was stopped, and nothing written; throws FileError.
bool export_pages(const QList<SectionPage *> &pages, const QString &path, const QString &title,
                  const Progress &progress);

} // namespace document_editor
