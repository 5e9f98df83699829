// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "section_page.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QVBoxLayout>

namespace document_editor {

using my_classes::CustomTab;
using my_classes::CustomTextEditor;
using my_classes::EditorCounts;
using my_spellchecker::MySpellChecker;

namespace {

/// `language`, or none where that has no dictionary.
QString usable(const QString &language)
{
    return language.isEmpty() || !MySpellChecker::is_available(language) ? QString() : language;
}

} // namespace

SectionPage::SectionPage(const Section &section)
    : m_html(section.html)
    , m_language(section.language)
{
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
}

void SectionPage::load()
{
    if (m_tab)
        return;
    m_tab = new CustomTab({}, {}, usable(m_language));
    if (!m_html.isEmpty())
        m_tab->set_html_content(m_html);
    m_tab->editor->set_modified(false);
    m_revision = m_html.isEmpty() ? -1 : revision();
    m_counts = m_tab->editor->counts();
    connect(m_tab, &CustomTab::text_changed, this, &SectionPage::text_changed);
    connect(m_tab->editor, &CustomTextEditor::modified_changed, this, &SectionPage::modified_changed);
    connect(m_tab->editor, &CustomTextEditor::counts_changed, this, &SectionPage::take_counts);
    Q_EMIT loaded(this);
    layout()->addWidget(m_tab);
    m_tab->show(); // at once, where the page is visible already
    setFocusProxy(m_tab);
    Q_EMIT counts_changed();
}

CustomTextEditor *SectionPage::editor()
{
    load();
    return m_tab->editor;
}

QString SectionPage::html()
{
    if (has_changed_since_snapshot()) {
        m_html = m_tab->get_html_content();
        m_revision = revision();
    }
    return m_html;
}

int SectionPage::revision() const
{
    return m_tab->editor->text_edit->document()->revision();
}

bool SectionPage::has_changed_since_snapshot() const
{
    return m_tab && revision() != m_revision;
}

void SectionPage::set_language(const QString &language)
{
    if (m_tab)
        m_tab->set_lang(usable(language));
    m_language = language;
    Q_EMIT language_changed();
}

bool SectionPage::is_modified() const
{
    return m_tab && m_tab->editor->is_modified();
}

void SectionPage::set_modified(bool modified)
{
    if (modified)
        m_revision = -1;
    if (m_tab)
        m_tab->editor->set_modified(modified);
}

bool SectionPage::is_blank()
{
    return editor()->text_edit->document()->isEmpty();
}

void SectionPage::showEvent(QShowEvent *event)
{
    load();
    QWidget::showEvent(event);
}

void SectionPage::take_counts(const EditorCounts &counts)
{
    if (!counts.of_selection)
        m_counts = counts;
    Q_EMIT counts_changed();
}

} // namespace document_editor
