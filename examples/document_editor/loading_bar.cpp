// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "loading_bar.h"

#include "section_page.h"
#include "section_tabs.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace document_editor {

namespace {

constexpr int k_width = 150; // pixels

} // namespace

LoadingBar::LoadingBar(SectionTabs *tabs)
    : m_tabs(tabs)
    , m_bar(new QProgressBar)
{
    m_bar->setFormat(tr("Loading %v of %m"));
    m_bar->setAccessibleName(tr("Loading sections"));
    m_bar->setFixedWidth(k_width);
    auto *stop = new QToolButton;
    stop->setText(tr("Stop"));
    stop->setToolTip(tr("Sections are loaded when they are shown"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_bar);
    row->addWidget(stop);
    hide();

    connect(&m_timer, &QTimer::timeout, this, &LoadingBar::load_next);
    connect(stop, &QToolButton::clicked, this, [this] {
        m_timer.stop();
        hide();
    });
}

void LoadingBar::start()
{
    m_timer.start();
}

void LoadingBar::load_next()
{
    const QList<SectionPage *> pages = m_tabs->pages();
    const auto next = std::find_if_not(pages.begin(), pages.end(), std::mem_fn(&SectionPage::is_loaded));
    if (next == pages.end()) {
        m_timer.stop();
        hide();
        return;
    }
    m_bar->setRange(0, int(pages.size()));
    m_bar->setValue(int(std::count_if(pages.begin(), pages.end(), std::mem_fn(&SectionPage::is_loaded))));
    show();
    (*next)->load();
}

} // namespace document_editor
