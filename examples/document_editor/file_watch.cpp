// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "file_watch.h"

#include <QtCore/QFileInfo>

namespace document_editor {

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        if (QFileInfo::exists(m_path))
            m_watcher.addPath(m_path); // a file that was put in its place is not watched yet
        if (has_changed())
            Q_EMIT changed();
    });
}

void FileWatch::take_as_known(const QString &path)
{
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_path = path;
    m_known = stamp_of(path);
    if (QFileInfo::exists(path))
        m_watcher.addPath(path);
}

bool FileWatch::has_changed() const
{
    const Stamp now = stamp_of(m_path);
    return now.size != -1 && (now.time != m_known.time || now.size != m_known.size);
}

FileWatch::Stamp FileWatch::stamp_of(const QString &path)
{
    const QFileInfo file(path);
    return path.isEmpty() || !file.exists() ? Stamp() : Stamp{file.lastModified(), file.size()};
}

} // namespace document_editor
