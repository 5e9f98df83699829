// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/file_downloader.h>

#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtNetwork/QNetworkAccessManager>

#include <optional>

namespace my_classes {

/// What one run() of a FileDownloader works with; lives on its thread. Destroyed while the transfer is under way, it
/// removes the file.
class FileDownloader::Transfer : public QObject
{
public:
    explicit Transfer(FileDownloader *downloader);
    ~Transfer() override;

    /// Opens the file and sends the request. False, after download_finished(false), if the file cannot be opened.
    bool start();
    /// Ends a transfer that is under way, as a cancelled one. Nothing if it has ended.
    void cancel();

private:
    enum class Outcome { Complete, Failed, Cancelled };

    void bound_read_buffer();
    void on_finished();
    void on_ready_read();
    void on_download_progress(qint64 bytes_received, qint64 bytes_total);
    void end(Outcome outcome);
    void remove_file();
    std::optional<qint64> announced_length() const;
    bool is_short() const;

    FileDownloader *const m_downloader;
    QFile m_file;
    QNetworkAccessManager m_network; // after the file: destroyed first
    QNetworkReply *m_reply = nullptr;
    qint64 m_received = 0;
    bool m_write_failed = false;
    bool m_ended = false;
};

} // namespace my_classes
