// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document_file.h"

#include <my_classes/editable_tab_widget.h>

namespace document_editor {

class SectionPage;

/// The sections of one document as tabs. Closed ones are kept until the document is saved. There is always one open.
class SectionTabs : public my_classes::EditableTabWidget
{
    Q_OBJECT

public:
    explicit SectionTabs(QWidget *parent = nullptr);

    QList<SectionPage *> pages() const;
    QList<SectionPage *> closed_pages() const;
    SectionPage *current_page() const;

    /// As the person's act: the section becomes the current one, the document modified.
    void add_section(const Section &section);
    void restore_section();
    bool can_restore_section() const { return !m_closed.isEmpty(); }

    /// Modified: it is in no file as it is.
    void set_document(const Document &document, bool modified = false);
    Document document();
    /// Of what the pages last gave, the closed ones included; never waits for one.
    Document snapshot() const;

    bool is_modified() const;
    /// False: as is, it is in the file, and closed sections are gone for good.
    void set_modified(bool modified);
    /// A new document in which nothing was done.
    bool is_untouched() const;

Q_SIGNALS:
    void page_loaded(document_editor::SectionPage *page);
    void content_changed();
    void modified_changed();
    void counts_changed();

private:
    struct ClosedSection
    {
        SectionPage *page;
        QString title;
        int index;
    };

    SectionPage *new_page(const Section &section);
    SectionPage *append(const Section &section);
    bool may_close(QWidget *page, const QString &title);
    void keep_closed(QWidget *page, const QString &title);
    void structure_changed();
    void delete_closed();

    QList<ClosedSection> m_closed;
    int m_closing_index = 0;
    bool m_structure_changed = false; // titles, order, number, languages
};

} // namespace document_editor
