// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "recovery_file.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace document_editor {

class SectionPage;
class SectionTabs;

/// Keeps the recovery file within five seconds of what the person writes, and off the way of the keys: changed sections
/// are asked for their content when typing pauses, one each turn of the event loop, and written on another thread.
class Autosave : public QObject
{
    Q_OBJECT

public:
    Autosave(SectionTabs *tabs, std::unique_ptr<RecoveryFile> file, QObject *parent);

    /// The path of the document's own file and what it was when it was read or written, for whoever recovers it.
    void set_origin(const QString &path, const QString &stamp);
    /// The document is in its file or given up.
    void stop();

Q_SIGNALS:
    /// Empty once the copy is on disk again.
    void problem_changed(const QString &reason);

private:
    void note_change();
    void wait_for_pause();
    void take_sections();
    void take_next_section();

    SectionTabs *m_tabs;
    std::unique_ptr<RecoveryFile> m_file;
    QString m_origin;
    QString m_origin_stamp;
    QList<QPointer<SectionPage>> m_to_take; // in this round; what changes meanwhile is for the next one
    QTimer m_timer;
    QElapsedTimer m_since_first_change; // of those that are not in the file; invalid: there are none
    QElapsedTimer m_since_last_change;
};

} // namespace document_editor
