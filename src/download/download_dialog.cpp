// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/download_dialog.h>
#include <my_classes/file_downloader.h>

namespace my_classes {

DownloadDialog::DownloadDialog(const QString &, const QString &, const QString &, QWidget *parent)
    : QProgressDialog(parent)
{
}
DownloadDialog::~DownloadDialog() = default;
void DownloadDialog::on_download_finished(bool) {}
void DownloadDialog::on_download_cancelled() {}

} // namespace my_classes
