// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/transfer.h"

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <array>

namespace my_classes {

namespace {

constexpr qint64 k_read_buffer_bytes = 1024 * 1024;
constexpr std::size_t k_block_bytes = 64 * 1024;

} // namespace

FileDownloader::Transfer::Transfer(FileDownloader *downloader)
    : m_downloader(downloader)
    , m_file(downloader->file_path)
{
}

FileDownloader::Transfer::~Transfer()
{
    const bool all_written = m_reply && announced_length() && !is_short() && !m_write_failed;
    if (!m_ended && m_file.isOpen() && (m_downloader->is_cancelled || !all_written))
        remove_file();
    m_downloader->reply = nullptr;
}

bool FileDownloader::Transfer::start()
{
    // Unbuffered: what a full disk refuses is refused at once. An empty name would make QFile warn.
    if (m_file.fileName().isEmpty() || !m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        end(Outcome::Failed);
        return false;
    }
    m_reply = m_network.get(QNetworkRequest(QUrl(m_downloader->url)));
    m_downloader->reply = m_reply;
    bound_read_buffer();
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::on_finished);
    connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::on_ready_read);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &Transfer::on_download_progress);
    // A redirect starts anew without the bound; its request has been sent when a queued call arrives.
    connect(m_reply, &QNetworkReply::redirected, this, &Transfer::bound_read_buffer, Qt::QueuedConnection);
    return true;
}

void FileDownloader::Transfer::cancel()
{
    if (m_ended)
        return;
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    end(Outcome::Cancelled);
}

void FileDownloader::Transfer::bound_read_buffer()
{
    if (m_reply)
        m_reply->setReadBufferSize(k_read_buffer_bytes);
}

void FileDownloader::Transfer::on_finished()
{
    on_ready_read(); // the last bytes may come without a signal of their own
    {
        const std::lock_guard lock(m_downloader->m_guard);
        if (m_downloader->m_cancel_state != CancelState::None)
            return; // cancel() announces it first, and ends the transfer then
    }
    const bool complete = m_reply->error() == QNetworkReply::NoError && !is_short() && !m_write_failed;
    end(complete ? Outcome::Complete : Outcome::Failed);
}

void FileDownloader::Transfer::on_ready_read()
{
    std::array<char, k_block_bytes> block;
    while (!m_write_failed && m_reply && m_reply->isOpen()) {
        const qint64 size = m_reply->read(block.data(), block.size());
        if (size <= 0)
            return;
        m_received += size;
        if (m_file.write(block.data(), size) != size) {
            m_write_failed = true;
            m_reply->abort();
        }
    }
}

void FileDownloader::Transfer::on_download_progress(qint64 bytes_received, qint64 bytes_total)
{
    // Without an announced length Qt ends with a total of its own, the bytes received.
    if (bytes_total > 0 && announced_length())
        Q_EMIT m_downloader->progress_updated(static_cast<int>(double(bytes_received) / double(bytes_total) * 100));
}

void FileDownloader::Transfer::end(Outcome outcome)
{
    m_ended = true;
    m_file.close();
    if (outcome == Outcome::Cancelled)
        remove_file();
    if (m_reply)
        m_reply->deleteLater();
    m_reply = nullptr;
    m_downloader->reply = nullptr;
    Q_EMIT m_downloader->download_finished(outcome == Outcome::Complete && m_file.error() == QFileDevice::NoError);
}

void FileDownloader::Transfer::remove_file()
{
    m_file.close();
    if (QFileInfo(m_file).isFile()) // never a device
        m_file.remove();
}

/// Nothing for a compressed body, too: Qt drops the length, which is not that of the file.
std::optional<qint64> FileDownloader::Transfer::announced_length() const
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() ? std::optional(length.toLongLong()) : std::nullopt;
}

/// Qt may end a reply without an error although the server has closed the connection half way.
bool FileDownloader::Transfer::is_short() const
{
    return m_received < announced_length().value_or(0);
}

} // namespace my_classes
