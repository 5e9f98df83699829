// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "opener.h"

#include "progress_box.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <atomic>
#include <memory>

namespace document_editor {

std::optional<Document> read_document(const QString &path, QWidget *parent)
{
    ProgressBox box(QObject::tr("Opening %1").arg(QFileInfo(path).fileName()), parent);
    std::atomic_bool stopped = false;
    std::optional<Document> document;
    std::exception_ptr error;
    QEventLoop loop;
    const auto progress = [&](int done, int all) {
        QMetaObject::invokeMethod(&loop, [&, done, all] { stopped = stopped || !box.show(done, all); });
        return !stopped;
    };
    const std::unique_ptr<QThread> reader(QThread::create([&] {
        try {
            document = from_bytes(read_file(path, progress));
        } catch (const FileError &) {
            error = std::current_exception();
        }
    }));
    QObject::connect(reader.get(), &QThread::finished, &loop, &QEventLoop::quit);
    reader->start();
    loop.exec();
    reader->wait();
    if (stopped)
        return {};
    if (error)
        std::rethrow_exception(error);
    return document;
}

} // namespace document_editor
