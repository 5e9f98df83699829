// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/transfer.h"
#include "frame/diagnostics.h"

#include <my_classes/file_downloader.h>

#include <QtCore/QPointer>

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
        is_cancelled = m_cancel_state != CancelState::None; // a cancel from before start() does not count
        announced_already = m_cancel_state == CancelState::Announced;
        m_transfer = &transfer;
    }
    if (announced_already)
        QMetaObject::invokeMethod(&transfer, &Transfer::cancel, Qt::QueuedConnection);

    if (is_cancelled || transfer.start())
        exec();

    const std::lock_guard lock(m_guard);
    m_transfer = nullptr;
    m_cancel_state = CancelState::None;
}

void FileDownloader::cancel()
{
    trace("FileDownloader cancelled");
    {
        const std::lock_guard lock(m_guard);
        is_cancelled = true;
        if (isRunning())
            m_cancel_state = CancelState::Asked;
    }

    const QPointer<FileDownloader> still_here(this);
    Q_EMIT download_cancelled(); // first: nobody hears of the end before the cancel
    if (!still_here)
        return;

    const std::lock_guard lock(m_guard);
    if (m_cancel_state == CancelState::Asked)
        m_cancel_state = CancelState::Announced;
    if (m_transfer)
        QMetaObject::invokeMethod(m_transfer, &Transfer::cancel, Qt::QueuedConnection);
}

} // namespace my_classes
