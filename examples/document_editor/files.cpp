// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "files.h"

#include "file_error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace document_editor {

namespace {

constexpr qint64 k_largest_file = 1'000'000'000; // bytes

QString tr(const char *text)
{
    return QCoreApplication::translate("document_editor::Files", text);
}

[[noreturn]] void refuse(const char *text, const QString &path, const QString &reason)
{
    throw FileError(tr(text).arg(QDir::toNativeSeparators(path), reason));
}

} // namespace

QByteArray read_file(const QString &path)
{
    const auto text = QT_TRANSLATE_NOOP("document_editor::Files", "“%1” cannot be read: %2");
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // a pipe or device may have no end
        refuse(text, path, tr("it is no file."));
    if (info.size() > k_largest_file)
        refuse(text, path, tr("it is too large."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(text, path, file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        refuse(text, path, file.errorString());
    return bytes;
}

void write_file(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    // Without the flush, commit() overlooks a full disk: it puts an empty file in place of a short one.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        refuse(QT_TRANSLATE_NOOP("document_editor::Files", "“%1” cannot be written: %2"), path, file.errorString());
}

} // namespace document_editor
