// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QProgressBar;
QT_END_NAMESPACE

namespace document_editor {

class SectionTabs;

/// Loads the sections that are not shown, one at a time, and shows how far it is while it does. Stopped, it leaves the
/// rest until they are shown.
class LoadingBar : public QWidget
{
    Q_OBJECT

public:
    explicit LoadingBar(SectionTabs *tabs);
    void start();

private:
    void load_next();

    SectionTabs *m_tabs;
    QProgressBar *m_bar;
    QTimer m_timer;
};

} // namespace document_editor
