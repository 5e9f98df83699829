// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "autosave.h"

#include "section_page.h"
#include "section_tabs.h"

#include <chrono>

namespace document_editor {

using namespace std::chrono_literals;

namespace {

constexpr auto k_first_look = 1s;
constexpr auto k_pause = 250ms;
constexpr auto k_patience = 3s; // leaves two for taking and writing the copy
constexpr auto k_next_attempt = 5s;

bool has_passed(const QElapsedTimer &since, std::chrono::milliseconds time)
{
    return since.hasExpired(time.count());
}

} // namespace

Autosave::Autosave(SectionTabs *tabs, std::unique_ptr<RecoveryFile> file, QObject *parent)
    : QObject(parent)
    , m_tabs(tabs)
    , m_file(std::move(file))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::wait_for_pause);
    connect(tabs, &SectionTabs::content_changed, this, &Autosave::note_change);
    connect(tabs, &SectionTabs::modified_changed, this, [this] {
        if (!m_tabs->is_modified())
            stop();
    });
    connect(m_file.get(), &RecoveryFile::written, this, [this] { Q_EMIT problem_changed({}); });
    connect(m_file.get(), &RecoveryFile::failed, this, [this](const QString &reason) {
        m_timer.start(k_next_attempt);
        Q_EMIT problem_changed(reason);
    });
}

void Autosave::set_origin(const QString &path, const QString &stamp)
{
    m_origin = path;
    m_origin_stamp = stamp;
}

void Autosave::note_change()
{
    m_since_last_change.start();
    if (m_timer.isActive())
        return;
    m_since_first_change.start();
    m_timer.start(k_first_look);
}

void Autosave::wait_for_pause()
{
    if (has_passed(m_since_last_change, k_pause) || has_passed(m_since_first_change, k_patience))
        take_sections();
    else
        m_timer.start(k_pause);
}

void Autosave::take_sections()
{
    m_to_take.clear();
    const QList<SectionPage *> pages = m_tabs->pages() + m_tabs->closed_pages();
    for (SectionPage *page : pages) {
        if (page->has_changed_since_snapshot())
            m_to_take.append(page);
    }
    take_next_section();
}

void Autosave::take_next_section()
{
    if (!m_tabs->is_modified() || !m_since_first_change.isValid()) // saved or given up meanwhile
        return;
    if (!m_to_take.isEmpty()) {
        if (const QPointer<SectionPage> page = m_to_take.takeFirst())
            page->html();
        QTimer::singleShot(0, this, &Autosave::take_next_section);
        return;
    }
    Document document = m_tabs->snapshot();
    document.origin = m_origin;
    document.origin_stamp = m_origin_stamp;
    m_file->write(document);
}

void Autosave::stop()
{
    m_timer.stop();
    m_to_take.clear();
    m_since_first_change.invalidate();
    m_file->remove();
    Q_EMIT problem_changed({});
}

} // namespace document_editor
