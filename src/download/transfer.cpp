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

constexpr qint64 k_read_buffer_bytes = 1'048'576;
constexpr std::size_t k_block_bytes = 65'536;

} // namespace

FileDownloader::Transfer::Transfer(FileDownloader *downloader)
    : m_downloader(downloader)
    , m_file(downloader->file_path)
{
}

FileDownloader::Transfer::~Transfer()
{
    if (!m_ended && (m_downloader->is_cancelled || !is_whole()))
        remove_file();
    m_downloader->reply = nullptr;
}

bool FileDownloader::Transfer::start()
{
    // Unbuffered: what a full disk refuses is refused at once. An empty name would make QFile warn.
    m_has_opened_file = !m_file.fileName().isEmpty() && m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    if (m_has_opened_file)
        send_request();
    else if (m_downloader->claim_end())
        end(false);
    return !m_ended;
}

void FileDownloader::Transfer::send_request()
{
    QNetworkRequest request(QUrl(m_downloader->url));
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // whose replies the read buffer does not bound
    m_reply = m_network.get(request);
    m_downloader->reply = m_reply;
    bound_read_buffer();
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::on_finished);
    connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::on_ready_read);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &Transfer::on_download_progress);
    // A redirect starts anew without the bound; its request has been sent when a queued call arrives.
    connect(m_reply, &QNetworkReply::redirected, this, &Transfer::bound_read_buffer, Qt::QueuedConnection);
}

void FileDownloader::Transfer::cancel()
{
    if (m_ended)
        return;
    delete m_reply; // not aborted: an error that is on its way would be Qt's second, of which it warns
    m_reply = nullptr;
    end(true);
}

void FileDownloader::Transfer::bound_read_buffer()
{
    if (m_reply)
        m_reply->setReadBufferSize(k_read_buffer_bytes);
}

void FileDownloader::Transfer::abort_reply()
{
    if (m_reply->error() == QNetworkReply::NoError) // Qt warns of a second error
        m_reply->abort();
}

void FileDownloader::Transfer::on_finished()
{
    on_ready_read(); // the last bytes may come without a signal of their own
    if (m_downloader->claim_end())
        end(false);
}

void FileDownloader::Transfer::on_ready_read()
{
    std::array<char, k_block_bytes> block;
    while (m_write_error.isEmpty() && m_reply && m_reply->isOpen()) {
        const qint64 size = m_reply->read(block.data(), block.size());
        if (size <= 0)
            return;
        m_received += size;
        if (!write(block.data(), size)) {
            m_write_error = m_file.errorString();
            abort_reply();
        }
    }
}

bool FileDownloader::Transfer::write(const char *data, qint64 size)
{
    while (size > 0) { // a disk may take a part, and tell with the next why it took no more
        const qint64 written = m_file.write(data, size);
        if (written <= 0)
            return false;
        data += written;
        size -= written;
    }
    return true;
}

void FileDownloader::Transfer::on_download_progress(qint64 bytes_received, qint64 bytes_total)
{
    // Without an announced length Qt ends with a total of its own, the bytes received.
    if (bytes_total > 0 && announced_length())
        Q_EMIT m_downloader->progress_updated(static_cast<int>(double(bytes_received) / double(bytes_total) * 100));
}

void FileDownloader::Transfer::end(bool was_cancelled)
{
    m_ended = true;
    m_file.close(); // which may fail, too
    if (was_cancelled)
        remove_file();
    const QString reason = was_cancelled ? QString() : failure();
    m_downloader->keep_reason(reason, http_status());
    if (m_reply)
        m_reply->deleteLater();
    m_reply = nullptr;
    m_downloader->reply = nullptr;
    Q_EMIT m_downloader->download_finished(!was_cancelled && reason.isEmpty());
    m_downloader->end_is_told();
}

void FileDownloader::Transfer::remove_file()
{
    m_file.close();
    if (m_has_opened_file && QFileInfo(m_file).isFile()) // never a device
        m_file.remove();
}

/// In words for a person; empty if there is none.
QString FileDownloader::Transfer::failure() const
{
    if (!m_write_error.isEmpty())
        return FileDownloader::tr("The file cannot be written: %1").arg(m_write_error);
    if (m_file.error() != QFileDevice::NoError)
        return FileDownloader::tr("The file cannot be written: %1").arg(m_file.errorString());
    if (!m_reply)
        return FileDownloader::tr("There is no file name.");
    if (http_status() >= 400) {
        const QString phrase = m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        return FileDownloader::tr("The server answered: %1 %2").arg(http_status()).arg(phrase).trimmed();
    }
    if (m_reply->error() != QNetworkReply::NoError)
        return m_reply->errorString();
    return is_short() ? FileDownloader::tr("The connection was closed before the whole file had arrived.") : QString();
}

int FileDownloader::Transfer::http_status() const
{
    return m_reply ? m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() : 0;
}

/// Nothing for a compressed body, too: Qt drops the length, which is not that of the file. A length beside chunks means
/// nothing.
std::optional<qint64> FileDownloader::Transfer::announced_length() const
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    const bool has_chunks = m_reply->rawHeader("Transfer-Encoding").toLower().contains("chunked");
    return length.isValid() && !has_chunks ? std::optional(length.toLongLong()) : std::nullopt;
}

/// Qt may end a reply without an error although the server has closed the connection half way.
bool FileDownloader::Transfer::is_short() const
{
    return m_received < announced_length().value_or(0);
}

/// Whether all is written that is known to come, though nobody has said that it is the end.
bool FileDownloader::Transfer::is_whole() const
{
    const bool is_body = http_status() / 100 == 2; // and not the one of a redirect
    return is_body && announced_length() && !is_short() && m_write_error.isEmpty();
}

} // namespace my_classes
