// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/wrapping_label.h"
#include "frame/diagnostics.h"

#include <my_classes/download_dialog.h>
#include <my_classes/file_downloader.h>

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QProgressBar>

#include <chrono>

namespace my_classes {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto k_outcome_time = 10s;

const auto k_bar_style = uR"(
            QProgressBar {
                border: 2px solid grey;
                border-radius: 5px;
                margin: 10px;
                text-align: center;  /* Centra el texto horizontalmente */
            }
            QProgressBar::chunk {
                background-color: #05B8CC;
                width: 10px;  /* Ancho de cada segmento de la barra */
            }
        )"_s;

} // namespace

DownloadDialog::DownloadDialog(const QString &url, const QString &file_path, const QString &msg, QWidget *parent)
    : QProgressDialog(parent)
    , downloader(std::make_unique<FileDownloader>(url, file_path))
{
    setLabel(new WrappingLabel);
    setWindowTitle(tr("Download File"));
    setFixedSize(300, 150);
    setModal(true);
    setStyleSheet(k_bar_style);
    setLabelText(msg);
    setCancelButtonText(tr("Cancel"));
    setRange(0, 100);
    findChild<QProgressBar *>()->setAccessibleName(tr("Download progress"));

    connect(downloader.get(), &FileDownloader::progress_updated, this, &DownloadDialog::show_progress);
    connect(downloader.get(), &FileDownloader::download_finished, this, &DownloadDialog::on_download_finished);
    connect(downloader.get(), &FileDownloader::download_cancelled, this, &DownloadDialog::on_download_cancelled);
    connect(this, &QProgressDialog::canceled, downloader.get(), &FileDownloader::cancel);
    downloader->start();
}

DownloadDialog::~DownloadDialog() = default;

void DownloadDialog::on_download_finished(bool success)
{
    m_finished = true;
    disconnect(this, &QProgressDialog::canceled, downloader.get(), nullptr); // nothing is left to cancel
    QTimer::singleShot(k_outcome_time, this, &QWidget::close);

    if (success && m_cancelled)
        QFile::remove(downloader->file_path); // the last byte came just before the cancel
    if (success && !m_cancelled) {
        setLabelText(tr("Descarga completada"));
        accept(); // last: who hears of it may delete the dialog
        return;
    }
    setLabelText(tr("Error en la descarga"));
    if (!m_cancelled)
        show(); // the bar at 100 hides the dialog, and a failure may come before it was ever shown
}

void DownloadDialog::on_download_cancelled()
{
    trace("Download cancelled by user!");
    m_cancelled = true;
    setLabelText(tr("Descarga cancelada"));
    cancel();
}

void DownloadDialog::show_progress(int percent)
{
    if (m_cancelled || m_finished)
        return;
    // Once shown, QProgressDialog::setValue() would run events, in which the host may delete the dialog.
    if (!m_has_been_shown) {
        setValue(percent);
        return;
    }
    findChild<QProgressBar *>()->setValue(percent);
    if (percent == maximum() && autoReset())
        reset();
}

void DownloadDialog::closeEvent(QCloseEvent *event)
{
    // As in QProgressDialog, but a host may delete the dialog when it hears of the cancel.
    const QPointer<DownloadDialog> still_here(this);
    Q_EMIT canceled();
    if (still_here)
        QDialog::closeEvent(event);
}

void DownloadDialog::showEvent(QShowEvent *event)
{
    m_has_been_shown = true;
    QProgressDialog::showEvent(event);
}

} // namespace my_classes
