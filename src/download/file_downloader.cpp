// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/transfer.h"
#include "frame/diagnostics.h"

#include <my_classes/file_downloader.h>

#include <QtCore/QPointer>

#include <utility>

namespace my_classes {

FileDownloader::FileDownloader(const QString &url_, const QString &file_path_)
    : url(url_)
    , file_path(file_path_)
{
}

FileDownloader::~FileDownloader()
{
    quit(); // also holds when run() has not reached exec() yet
    wait(); // here and not in a base's destructor: run() uses these members to its last line
}

void FileDownloader::run()
{
    Transfer transfer(this);
    bool announced_already = false;
    {
        const std::lock_guard lock(m_guard);
        is_cancelled = m_state == State::CancelAsked || m_state == State::CancelAnnounced; // not from before start()
        announced_already = m_state == State::CancelAnnounced;
        if (!is_cancelled)
            m_state = State::Running;
        m_transfer = &transfer;
    }
    keep_reason({}, 0);
    if (announced_already)
        QMetaObject::invokeMethod(&transfer, &Transfer::cancel, Qt::QueuedConnection);

    if (is_cancelled || transfer.start())
        exec();

    const std::lock_guard lock(m_guard);
    m_transfer = nullptr;
    m_state = State::Idle;
}

void FileDownloader::cancel()
{
    trace("FileDownloader cancelled");
    {
        const std::lock_guard lock(m_guard);
        is_cancelled = true;
        m_cancel_waits = m_state == State::Ending;
        if (m_cancel_waits)
            return;
        if (m_state == State::Running || (m_state == State::Idle && isRunning()))
            m_state = State::CancelAsked;
    }

    const QPointer<FileDownloader> still_here(this);
    Q_EMIT download_cancelled(); // first: nobody hears of the end before the cancel
    if (!still_here)
        return;

    const std::lock_guard lock(m_guard);
    if (m_state == State::CancelAsked)
        m_state = State::CancelAnnounced;
    if (m_transfer)
        QMetaObject::invokeMethod(m_transfer, &Transfer::cancel, Qt::QueuedConnection);
}

/// Whether the transfer may end by itself. A cancel that came before is announced first, and ends it then.
bool FileDownloader::claim_end()
{
    const std::lock_guard lock(m_guard);
    if (m_state != State::Running)
        return false;
    m_state = State::Ending;
    return true;
}

void FileDownloader::end_is_told()
{
    const std::lock_guard lock(m_guard);
    if (m_state == State::Ending)
        m_state = State::Ended;
    if (std::exchange(m_cancel_waits, false))
        QMetaObject::invokeMethod(this, &FileDownloader::download_cancelled, Qt::QueuedConnection);
}

void FileDownloader::keep_reason(const QString &text, int status)
{
    const std::lock_guard lock(m_guard);
    m_error_text = text;
    m_http_status = status;
}

QString FileDownloader::error_text() const
{
    const std::lock_guard lock(m_guard);
    return m_error_text;
}

int FileDownloader::http_status() const
{
    const std::lock_guard lock(m_guard);
    return m_http_status;
}

} // namespace my_classes
