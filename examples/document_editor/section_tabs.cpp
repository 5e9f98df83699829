// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "section_tabs.h"

#include "preferences.h"
#include "section_page.h"

#include <my_classes/my_msgboxes.h>

#include <algorithm>

namespace document_editor {

using my_classes::EditableTabWidget;

SectionTabs::SectionTabs(QWidget *parent)
    : EditableTabWidget(parent)
{
    setDocumentMode(true);
    set_close_question([this](QWidget *page, const QString &title) { return may_close(page, title); });
    connect(this, &EditableTabWidget::tab_removed, this, &SectionTabs::keep_closed);
    connect(this, &EditableTabWidget::tab_moved, this, &SectionTabs::structure_changed);
    connect(this, &EditableTabWidget::tab_renamed, this, &SectionTabs::structure_changed);
}

QList<SectionPage *> SectionTabs::pages() const
{
    QList<SectionPage *> pages;
    for (int i = 0; i < count(); ++i) {
        if (auto *page = static_cast<SectionPage *>(widget(i))) // none while a tab is being removed
            pages.append(page);
    }
    return pages;
}

QList<SectionPage *> SectionTabs::closed_pages() const
{
    QList<SectionPage *> pages;
    for (const ClosedSection &closed : m_closed)
        pages.append(closed.page);
    return pages;
}

SectionPage *SectionTabs::current_page() const
{
    return static_cast<SectionPage *>(currentWidget());
}

SectionPage *SectionTabs::new_page(const Section &section)
{
    auto *page = new SectionPage(section);
    connect(page, &SectionPage::text_changed, this, &SectionTabs::content_changed);
    connect(page, &SectionPage::modified_changed, this, &SectionTabs::modified_changed);
    connect(page, &SectionPage::counts_changed, this, &SectionTabs::counts_changed);
    connect(page, &SectionPage::language_changed, this, &SectionTabs::structure_changed);
    connect(page, &SectionPage::loaded, this, &SectionTabs::page_loaded);
    return page;
}

SectionPage *SectionTabs::append(const Section &section)
{
    SectionPage *page = new_page(section);
    const QString wish = section.title.trimmed();
    addTab(page, unique_title(wish.isEmpty() ? tr("Section") : wish));
    return page;
}

void SectionTabs::add_section(const Section &section)
{
    SectionPage *page = append(section);
    setCurrentWidget(page);
    if (!page->is_blank())
        page->set_modified(true); // as the editor gives it from now on, not as it came
    page->editor()->text_edit->setFocus();
    structure_changed();
}

bool SectionTabs::may_close(QWidget *page, const QString &title)
{
    m_closing_index = indexOf(page);
    if (static_cast<SectionPage *>(page)->is_blank())
        return true;
    const QString question =
        tr("Confirm delete '%1'?\n\nNote: this action becomes permanent after document save.").arg(title);
    return my_msgboxes::confirm_warning_yes_no(this, tr("Document Section Deletion"), question) == QMessageBox::Yes;
}

void SectionTabs::keep_closed(QWidget *page, const QString &title)
{
    auto *section = static_cast<SectionPage *>(page);
    if (section->is_blank())
        section->deleteLater();
    else
        m_closed.append({section, title, m_closing_index});
    if (count() == 0)
        append({{}, Preferences::instance().language(), {}})->editor()->text_edit->setFocus();
    structure_changed();
}

void SectionTabs::restore_section()
{
    if (m_closed.isEmpty())
        return;
    const ClosedSection closed = m_closed.takeLast();
    setCurrentIndex(insertTab(closed.index, closed.page, unique_title(closed.title)));
    closed.page->editor()->text_edit->setFocus();
    structure_changed();
}

void SectionTabs::delete_closed()
{
    for (const ClosedSection &closed : std::as_const(m_closed))
        delete closed.page;
    m_closed.clear();
}

void SectionTabs::set_document(const Document &document, bool modified)
{
    m_structure_changed = true; // until the end, lest anyone takes it for saved
    delete_closed();
    const QList<SectionPage *> old = pages();
    for (const Section &section : document.sections)
        append(section);
    if (document.sections.isEmpty())
        append({{}, Preferences::instance().language(), {}});
    setCurrentIndex(int(old.size())); // lest a page is shown, and loaded, in the middle of a removal
    for (SectionPage *page : old)
        delete page;
    for (int i = 0; i < document.sections.size(); ++i) // old ones may have had their titles
        rename_tab(i, document.sections.at(i).title);
    for (const Section &section : document.closed) {
        SectionPage *page = new_page(section);
        page->setParent(this);
        m_closed.append({page, section.title, section.closed_at});
    }
    setCurrentIndex(0);
    current_page()->editor()->text_edit->setFocus();
    set_modified(modified);
}

Document SectionTabs::document()
{
    for (SectionPage *page : pages())
        page->html();
    Document document = snapshot();
    document.closed.clear();
    return document;
}

Document SectionTabs::snapshot() const
{
    Document document;
    for (int i = 0; i < count(); ++i) {
        const auto *page = static_cast<SectionPage *>(widget(i));
        document.sections.append({tabText(i), page->language(), page->snapshot()});
    }
    for (const ClosedSection &closed : m_closed)
        document.closed.append({closed.title, closed.page->language(), closed.page->snapshot(), closed.index});
    return document;
}

bool SectionTabs::is_modified() const
{
    const QList<SectionPage *> all = pages();
    return m_structure_changed || std::any_of(all.begin(), all.end(), std::mem_fn(&SectionPage::is_modified));
}

void SectionTabs::set_modified(bool modified)
{
    m_structure_changed = modified;
    if (!modified) {
        delete_closed();
        for (SectionPage *page : pages())
            page->set_modified(false);
    }
    Q_EMIT modified_changed();
}

bool SectionTabs::is_untouched() const
{
    return count() == 1 && !is_modified() && current_page()->is_blank() && !can_restore_section();
}

void SectionTabs::structure_changed()
{
    m_structure_changed = true;
    Q_EMIT content_changed();
    Q_EMIT modified_changed();
}

} // namespace document_editor
