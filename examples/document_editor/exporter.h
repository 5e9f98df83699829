// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

namespace document_editor {

class SectionPage;

/// Called between the steps of a long work with what is done, of about `all`; false stops it.
using Progress = std::function<bool(int done, int all)>;

/// The patterns of what export_pages() writes, for a file dialog.
QString export_filter();
/// Writes the pages into one file of the format that its suffix tells: PDF, ODT, HTML, Markdown, else plain text.
/// False if it was stopped, and nothing written; throws FileError.
bool export_pages(const QList<SectionPage *> &pages, const QString &path, const QString &title,
                  const Progress &progress);

} // namespace document_editor
