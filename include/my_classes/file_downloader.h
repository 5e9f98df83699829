// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtCore/QThread>

#include <atomic>
#include <mutex>

QT_BEGIN_NAMESPACE
class QNetworkReply;
QT_END_NAMESPACE

namespace my_classes {

/// Downloads one URL into one local file on a thread of its own. Nothing happens before start().
///
/// The body goes to disk as it arrives; a megabyte of it is in memory at most. After the end the thread idles until the
/// downloader is destroyed, which may happen at any moment but not on the downloader's own thread: the destructor stops
/// the thread, and removes the file of a transfer that was under way.
class MY_CLASSES_EXPORT FileDownloader : public QThread
{
    Q_OBJECT

public:
    /// `file_path` is overwritten.
    FileDownloader(const QString &url, const QString &file_path);
    ~FileDownloader() override;

    /// Stops the download and removes its file; callable from any thread. After the end of the download it only emits
    /// download_cancelled() (a queued download_finished(true) may still be on its way then, and stays true), and before
    /// start() it is forgotten by the download that follows.
    void cancel();

    /// Why the last download failed, in words for a person; empty before the end, after a success and after a cancel.
    /// Any thread.
    QString error_text() const;
    /// The last status that the server answered with, such as 404; 0 if there was none. Any thread.
    int http_status() const;

    /// What is downloaded. Assigning it holds for the next start().
    QString url;
    /// Where to. Assigning it holds for the next start().
    QString file_path;
    /// True once cancel() has been called for the present download.
    std::atomic<bool> is_cancelled = false;
    /// The running request, null before and after. It belongs to the worker thread: other threads may only compare it.
    std::atomic<QNetworkReply *> reply = nullptr;

Q_SIGNALS:
    /// Whole per cent, 0 to 100; on the worker thread. Not emitted if the server does not announce a length.
    void progress_updated(int percent);
    /// Emitted once, on the worker thread. False: the file could not be opened or written, the transfer failed or ended
    /// short, the server answered with an error, or the download was cancelled. What was written stays on disk, unless
    /// the download was cancelled. Of a compressed body Qt does not tell whether it ended short.
    void download_finished(bool success);
    /// Emitted by cancel(), on its thread, before the download_finished(false) which that causes. A cancel that comes
    /// while the end is being told is told behind it, from the event loop of the downloader's owner.
    void download_cancelled();

protected:
    void run() override;

private:
    class Transfer;
    enum class State { Idle, Running, CancelAsked, CancelAnnounced, Ending, Ended }; // of the present run

    bool claim_end();
    void end_is_told();
    void keep_reason(const QString &error_text, int http_status);

    mutable std::mutex m_guard; // of what is below
    Transfer *m_transfer = nullptr;
    State m_state = State::Idle;
    bool m_cancel_waits = false; // until the end is told
    QString m_error_text;
    int m_http_status = 0;
};

} // namespace my_classes
