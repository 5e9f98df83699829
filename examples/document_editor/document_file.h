// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files.h"

#include <QtCore/QList>

namespace document_editor {

/// One tab of a document.
struct Section
{
    QString title;
    QString language;   ///< of its spelling, as of MySpellChecker; empty: none
    QString html;       ///< exactly as CustomTextEditor::get_html_content() gave it
    int closed_at = -1; ///< of a closed section: the index that it had
};

/// What a file holds.
struct Document
{
    QList<Section> sections;
    QString origin;             ///< in a recovery file: the path of the document's own file, if it has one
    QString origin_stamp = {};  ///< FileWatch::stamp_of() that file, when it was known last
    QList<Section> closed = {}; ///< in a recovery file: those that were closed since, the last one last
};

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
