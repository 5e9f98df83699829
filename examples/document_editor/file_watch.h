// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QFileSystemWatcher>

namespace document_editor {

/// Tells when another program has changed a file.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent);

    /// The file as it is now is known; an empty path is none.
    void take_as_known(const QString &path);
    bool has_changed() const;

Q_SIGNALS:
    void changed();

private:
    struct Stamp
    {
        QDateTime time;
        qint64 size = -1;
    };
    static Stamp stamp_of(const QString &path);

    QFileSystemWatcher m_watcher;
    QString m_path;
    Stamp m_known;
};

} // namespace document_editor
