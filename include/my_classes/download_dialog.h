// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QProgressDialog>

#include <memory>

namespace my_classes {

class FileDownloader;

/// Progress dialog of one download, which its construction starts. The host shows and deletes it.
class MY_CLASSES_EXPORT DownloadDialog : public QProgressDialog
{
    Q_OBJECT

public:
    DownloadDialog(const QString &url, const QString &file_path, const QString &msg, QWidget *parent = nullptr);
    ~DownloadDialog() override;

    std::unique_ptr<FileDownloader> downloader;

public Q_SLOTS:
    void on_download_finished(bool success);
    void on_download_cancelled();
};

} // namespace my_classes
