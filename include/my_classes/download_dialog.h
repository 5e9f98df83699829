// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtCore/QString>
#include <QtWidgets/QProgressDialog>

#include <memory>

QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

namespace my_classes {

class FileDownloader;

/// How a download ended.
enum class DownloadOutcome { Pending, Completed, Failed, Cancelled };

/// Progress dialog of one download, which its construction starts. The host shows and deletes it, at any moment; by
/// itself it appears after QProgressDialog's delay; shown before, it stays or comes back for ten seconds when the
/// download has failed, and one that was never shown does not appear after the end: a host that shows it then shows the
/// failure for ten seconds. Closing it before the end cancels
/// the download; afterwards its button reads "Close", and it only closes. canceled() and wasCanceled() mean a cancel by
/// the person, nothing else. GUI thread only.
class MY_CLASSES_EXPORT DownloadDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// `msg` is the label during the download; it wraps.
    DownloadDialog(const QString &url, const QString &file_path, const QString &msg, QWidget *parent = nullptr);
    ~DownloadDialog() override;

    /// Returns when the outcome is known: Accepted after a success, Rejected after a cancel, and after a failure when
    /// the person has closed the dialog or its ten seconds are over.
    int exec() override;

    /// Pending until download_ended().
    DownloadOutcome outcome() const;
    /// Why the download failed, in words for a person; empty otherwise.
    QString error_text() const;
    /// The last status that the server answered with, such as 404; 0 if there was none.
    int http_status() const;

    /// Its own signals may have been emitted before a host can connect to them: download_ended() has not.
    std::unique_ptr<FileDownloader> downloader;

Q_SIGNALS:
    /// Once, from the event loop after the construction: also a host that connects then hears of it.
    void download_ended(my_classes::DownloadOutcome outcome);

public Q_SLOTS:
    /// Shows the outcome; connected to FileDownloader::download_finished().
    void on_download_finished(bool success); // clazy:exclude=connect-by-name
    /// Shows the cancel; connected to FileDownloader::download_cancelled().
    void on_download_cancelled(); // clazy:exclude=connect-by-name

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void set_texts();
    void show_state(const char *state);
    void show_progress(int percent);
    void settle(DownloadOutcome outcome);
    void show_failure();
    void wait_for_outcome();

    QTimer *m_closing;
    QString m_title;
    QString m_button_text;
    const char *m_state = nullptr;
    QString m_state_text;
    DownloadOutcome m_outcome = DownloadOutcome::Pending;
    bool m_cancelled = false;
    bool m_is_executing = false;
    bool m_has_been_shown = false;
};

} // namespace my_classes
