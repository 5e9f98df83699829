// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

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

} // namespace document_editor
