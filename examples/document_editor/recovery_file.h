// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document_file.h"

#include <QtCore/QLockFile>
#include <QtCore/QObject>
#include <QtCore/QThreadPool>

#include <memory>
#include <optional>
#include <vector>

namespace document_editor {

/// The copy of one unsaved document that outlives a crash. Each has a lock file beside it, so that several windows and
/// several running programs do not touch each other's. Written on a thread of its own, the newest copy only.
class RecoveryFile : public QObject
{
    Q_OBJECT

public:
    /// Of a new document: on disk from the first write() on.
    RecoveryFile();
    /// Leaves the file as it is; waits for a copy that is being written.
    ~RecoveryFile() override;

    /// Those whose program has ended without removing them; they are held by this one from now on.
    static std::vector<std::unique_ptr<RecoveryFile>> left_behind();

    QString path() const { return m_path; }
    void write(const Document &document);
    /// For a document that was saved or given up.
    void remove();

Q_SIGNALS:
    void written();
    /// The file on disk is still the earlier one, if there was one.
    void failed(const QString &reason);

private:
    explicit RecoveryFile(const QString &path);
    void write_next();

    QString m_path;
    QLockFile m_lock;
    QThreadPool m_writer;
    std::optional<Document> m_next; // waits for the writer
    bool m_is_writing = false;
};

} // namespace document_editor
