// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "files.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace document_editor {

namespace {

constexpr qint64 k_largest_file = 1'000'000'000; // bytes
constexpr qint64 k_step = 4'000'000;

/// In several calls, because only a call that writes nothing tells why.
bool write_all(QIODevice &device, const QByteArray &bytes)
{
    qint64 at = 0;
    for (qint64 written = 1; written > 0 && at < bytes.size(); at += written)
        written = device.write(bytes.constData() + at, bytes.size() - at);
    return at == bytes.size();
}

} // namespace

QByteArray read_file(const QString &path, const Progress &progress)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // a pipe or device may have no end
        throw FileError(QObject::tr("It is no file."));
    if (info.size() > k_largest_file)
        throw FileError(QObject::tr("It is too large."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw FileError(file.errorString());
    QByteArray bytes;
    bytes.reserve(info.size());
    do {
        bytes += file.read(k_step);
    } while (file.error() == QFileDevice::NoError && !file.atEnd() &&
             (!progress || progress(int(bytes.size() / 1000), int(file.size() / 1000))));
    if (file.error() != QFileDevice::NoError)
        throw FileError(file.errorString());
    return bytes;
}

void write_file(const QString &path, const QByteArray &bytes)
{
    if (bytes.size() > k_largest_file)
        throw FileError(QObject::tr("It would be too large to be read again."));
    QSaveFile file(path);
    // Unbuffered, because commit() overlooks what a buffer could not write, and puts an empty file in place.
    const auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (!file.open(mode) || !write_all(file, bytes) || !file.commit())
        throw FileError(file.errorString());
}

} // namespace document_editor
