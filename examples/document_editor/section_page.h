// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document_file.h"

#include <my_classes/my_classes.h>

namespace document_editor {

/// The page of a section: a CustomTab that is made and loaded when it is first needed, and what has changed since.
class SectionPage : public QWidget
{
    Q_OBJECT

public:
    explicit SectionPage(const Section &section);

    void load();
    bool is_loaded() const { return m_tab != nullptr; }
    /// Loads the section if need be.
    my_classes::CustomTextEditor *editor();

    /// The content as it is. Costs nothing if it has not changed since the last time or the file.
    QString html();
    /// What html() gave last.
    QString snapshot() const { return m_html; }
    bool has_changed_since_snapshot() const;

    /// The wish: a section keeps a language that has no dictionary here.
    QString language() const { return m_language; }
    void set_language(const QString &language);

    bool is_modified() const;
    void set_modified(bool modified);
    /// Loads the section if need be.
    bool is_blank();
    /// Of the whole section, whatever is selected.
    my_classes::EditorCounts counts() const { return m_counts; }

Q_SIGNALS:
    void loaded(document_editor::SectionPage *page);
    void text_changed();
    void counts_changed();
    void modified_changed();
    void language_changed();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void take_counts(const my_classes::EditorCounts &counts);
    int revision() const;

    my_classes::CustomTab *m_tab = nullptr;
    QString m_html;
    QString m_language;
    int m_revision = -1; // of the text document, at the last snapshot
    my_classes::EditorCounts m_counts;
};

} // namespace document_editor
