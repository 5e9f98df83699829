// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QFileSystemWatcher>

namespace document_editor {

/// Tells when another program has changed a file.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent);

    /// Tells a file apart from what it was at another time; empty if there is none.
    static QString stamp_of(const QString &path);

    /// Known is the file that had this stamp; an empty path is none.
    void follow(const QString &path, const QString &stamp);
    QString known() const { return m_known; }
    bool has_changed() const;

Q_SIGNALS:
    void changed();

private:
    QFileSystemWatcher m_watcher;
    QString m_path;
    QString m_known;
};

} // namespace document_editor
