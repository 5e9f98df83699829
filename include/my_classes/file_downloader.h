// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtCore/QThread>

#include <atomic>

QT_BEGIN_NAMESPACE
class QNetworkReply;
QT_END_NAMESPACE

namespace my_classes {

/// Downloads one URL into one local file on a thread of its own. Nothing happens before start().
class MY_CLASSES_EXPORT FileDownloader : public QThread
{
    Q_OBJECT

public:
    FileDownloader(const QString &url, const QString &file_path);
    ~FileDownloader() override;

    void cancel();

    QString url;
    QString file_path;
    std::atomic<bool> is_cancelled = false;
    std::atomic<QNetworkReply *> reply = nullptr;

Q_SIGNALS:
    void progress_updated(int percent);
    void download_finished(bool success);
    void download_cancelled();

protected:
    void run() override;
};

} // namespace my_classes
