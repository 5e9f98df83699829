// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recovery_file.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QUuid>

#include <utility>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

QDir directory()
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/recovery"_L1);
    directory.mkpath(u"."_s);
    return directory;
}

/// Empty if it is on disk.
QString reason_not_written(const QString &path, const Document &document)
{
    try {
        write_file(path, to_bytes(document));
    } catch (const FileError &error) {
        return error.reason();
    }
    return {};
}

} // namespace

RecoveryFile::RecoveryFile()
    : RecoveryFile(directory().filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + ".html"_L1))
{
    m_lock.tryLock();
}

RecoveryFile::RecoveryFile(const QString &path)
    : m_path(path)
    , m_lock(path + ".lock"_L1)
{
    m_lock.setStaleLockTime(0); // only the death of its program frees a lock, not its age
    m_writer.setMaxThreadCount(1);
}

RecoveryFile::~RecoveryFile()
{
    m_writer.waitForDone();
}

std::vector<std::unique_ptr<RecoveryFile>> RecoveryFile::left_behind()
{
    std::vector<std::unique_ptr<RecoveryFile>> found;
    const QDir here = directory();
    const QStringList names = here.entryList({u"*.html"_s}, QDir::Files, QDir::Time);
    for (const QString &name : names) {
        std::unique_ptr<RecoveryFile> file(new RecoveryFile(here.filePath(name)));
        if (file->m_lock.tryLock() && QFile::exists(file->path())) // its program may just have removed it
            found.push_back(std::move(file));
    }
    return found;
}

void RecoveryFile::write(const Document &document)
{
    m_next = document;
    if (!m_is_writing)
        write_next();
}

void RecoveryFile::write_next()
{
    m_is_writing = true;
    m_writer.start([this, document = *std::exchange(m_next, std::nullopt)] {
        const QString reason = reason_not_written(m_path, document);
        QMetaObject::invokeMethod(this, [this, reason] {
            m_is_writing = false;
            if (m_next)
                write_next();
            if (reason.isEmpty())
                Q_EMIT written();
            else
                Q_EMIT failed(reason);
        });
    });
}

void RecoveryFile::remove()
{
    m_next.reset();
    m_writer.start([path = m_path] { QFile::remove(path); }); // behind the copy that is being written
}

} // namespace document_editor
