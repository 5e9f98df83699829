// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/file_downloader.h>

#include <QtCore/QCoreApplication>
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
    void send_request();
    void bound_read_buffer();
    void abort_reply();
    void on_finished();
    void on_ready_read();
    void on_download_progress(qint64 bytes_received, qint64 bytes_total);
    bool write(const char *data, qint64 size);
    void end(bool was_cancelled);
    void remove_file();
    QString failure() const;
    int http_status() const;
    std::optional<qint64> announced_length() const;
    bool is_short() const;
    bool is_whole() const;

    FileDownloader *const m_downloader;
    QFile m_file;
    QNetworkAccessManager m_network; // after the file: destroyed first
    QNetworkReply *m_reply = nullptr;
    qint64 m_received = 0;
    bool m_has_opened_file = false;
    QString m_write_error;
    bool m_ended = false;
};

} // namespace my_classes
