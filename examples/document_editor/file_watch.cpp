// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "file_watch.h"

#include <QtCore/QDateTime>
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

QString FileWatch::stamp_of(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return {};
    return QStringLiteral("%1-%2").arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

void FileWatch::follow(const QString &path, const QString &stamp)
{
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_path = path;
    m_known = stamp;
    if (QFileInfo::exists(path))
        m_watcher.addPath(path);
}

bool FileWatch::has_changed() const
{
    const QString now = stamp_of(m_path);
    return !now.isEmpty() && now != m_known;
}

} // namespace document_editor
