// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "section_page.h"

#include <QtGui/QTextDocument>

namespace document_editor {

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
    : CustomTab({}, {}, usable(section.language))
    , m_html(section.html)
    , m_language(section.language)
    , m_is_loaded(section.html.isEmpty())
{
    connect(editor, &CustomTextEditor::modified_changed, this, &SectionPage::modified_changed);
    connect(editor, &CustomTextEditor::counts_changed, this, &SectionPage::take_counts);
}

void SectionPage::load()
{
    if (m_is_loaded)
        return;
    m_is_loaded = true;
    set_html_content(m_html);
    m_revision = editor->text_edit->document()->revision();
    editor->set_modified(false);
    take_counts(editor->counts());
}

QString SectionPage::html()
{
    if (has_changed_since_snapshot()) {
        m_html = get_html_content();
        m_revision = editor->text_edit->document()->revision();
    }
    return m_html;
}

bool SectionPage::has_changed_since_snapshot() const
{
    return m_is_loaded && editor->text_edit->document()->revision() != m_revision;
}

void SectionPage::set_language(const QString &language)
{
    set_lang(usable(language));
    m_language = language;
}

bool SectionPage::is_modified() const
{
    return editor->is_modified();
}

void SectionPage::set_modified(bool modified)
{
    if (modified)
        m_revision = -1;
    editor->set_modified(modified);
}

bool SectionPage::is_blank() const
{
    return m_is_loaded && editor->text_edit->document()->isEmpty();
}

void SectionPage::showEvent(QShowEvent *event)
{
    load();
    CustomTab::showEvent(event);
}

void SectionPage::take_counts(const EditorCounts &counts)
{
    if (!counts.of_selection)
        m_counts = counts;
    Q_EMIT counts_changed();
}

} // namespace document_editor
