// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/file_downloader.h>

namespace my_classes {

FileDownloader::FileDownloader(const QString &, const QString &) {}
FileDownloader::~FileDownloader() = default;
void FileDownloader::cancel() {}
void FileDownloader::run() {}

} // namespace my_classes
