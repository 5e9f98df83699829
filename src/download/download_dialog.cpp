// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/wrapping_label.h"
#include "frame/diagnostics.h"
#include "frame/retranslation.h"

#include <my_classes/download_dialog.h>
#include <my_classes/file_downloader.h>

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

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
    , m_closing(new QTimer(this))
{
    setLabel(new WrappingLabel);
    setFixedSize(300, 150);
    setModal(true);
    setStyleSheet(k_bar_style);
    setLabelText(msg);
    setCancelButtonText(m_button_text = tr("Cancel"));
    setRange(0, 100);
    m_closing->setSingleShot(true);
    connect(m_closing, &QTimer::timeout, this, &QWidget::close);
    new Retranslation(this, [this] { set_texts(); });

    connect(downloader.get(), &FileDownloader::progress_updated, this, &DownloadDialog::show_progress);
    connect(downloader.get(), &FileDownloader::download_finished, this, &DownloadDialog::on_download_finished);
    connect(downloader.get(), &FileDownloader::download_cancelled, this, &DownloadDialog::on_download_cancelled);
    connect(this, &QProgressDialog::canceled, this, [this] { m_cancelled = true; });
    connect(this, &QProgressDialog::canceled, downloader.get(), &FileDownloader::cancel);
    downloader->start();
}

DownloadDialog::~DownloadDialog() = default;

/// What a host has set instead stays.
void DownloadDialog::set_texts()
{
    if (windowTitle() == m_title)
        setWindowTitle(m_title = tr("Download File"));
    if (auto *button = findChild<QPushButton *>(); button && button->text() == m_button_text)
        button->setText(m_button_text = m_outcome == DownloadOutcome::Pending ? tr("Cancel") : tr("Close"));
    if (m_state && labelText() == m_state_text)
        show_state(m_state);
    findChild<QProgressBar *>()->setAccessibleName(tr("Download progress"));
}

/// In the label, in whatever language there is; `state` is untranslated.
void DownloadDialog::show_state(const char *state)
{
    m_state = state;
    setLabelText(m_state_text = tr(state));
}

DownloadOutcome DownloadDialog::outcome() const
{
    return m_outcome;
}

QString DownloadDialog::error_text() const
{
    return m_outcome == DownloadOutcome::Failed ? downloader->error_text() : QString();
}

int DownloadDialog::http_status() const
{
    return m_outcome == DownloadOutcome::Pending ? 0 : downloader->http_status();
}

int DownloadDialog::exec()
{
    const bool is_over =
        m_outcome == DownloadOutcome::Failed ? m_has_been_shown && !isVisible() : m_outcome != DownloadOutcome::Pending;
    if (is_over)
        return m_outcome == DownloadOutcome::Completed ? Accepted : Rejected;
    const QPointer<DownloadDialog> still_here(this);
    m_is_executing = true;
    const int code = QProgressDialog::exec();
    if (!still_here)
        return code;
    m_is_executing = false;
    if (m_cancelled)
        wait_for_outcome();
    return code;
}

/// A cancelled worker needs a moment until it has let go of the file.
void DownloadDialog::wait_for_outcome()
{
    if (m_outcome != DownloadOutcome::Pending)
        return;
    QEventLoop loop;
    connect(this, &DownloadDialog::download_ended, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
}

void DownloadDialog::on_download_finished(bool success)
{
    const bool is_news = m_outcome == DownloadOutcome::Pending;
    if (is_news)
        settle(m_cancelled ? DownloadOutcome::Cancelled
               : success   ? DownloadOutcome::Completed
                           : DownloadOutcome::Failed);
    m_closing->start(k_outcome_time);

    const QPointer<DownloadDialog> still_here(this);
    if (success && m_cancelled)
        QFile::remove(downloader->file_path); // the last byte came just before the cancel
    if (success && !m_cancelled) {
        show_state(QT_TR_NOOP("Descarga completada"));
        accept();
    } else {
        show_state(QT_TR_NOOP("Error en la descarga"));
        if (!m_cancelled)
            show_failure();
    }
    if (still_here && is_news) // who has heard of it already may have deleted the dialog
        Q_EMIT download_ended(m_outcome);
}

/// From now on nothing is left to cancel, and the dialog does not appear by itself.
void DownloadDialog::settle(DownloadOutcome outcome)
{
    m_outcome = outcome;
    disconnect(this, &QProgressDialog::canceled, downloader.get(), nullptr);
    if (auto *button = findChild<QPushButton *>()) {
        button->disconnect(this);
        button->setText(m_button_text = tr("Close"));
        connect(button, &QPushButton::clicked, this, &QWidget::close);
    }
    for (auto *shortcut : findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (shortcut->key() == QKeySequence(QKeySequence::Cancel))
            shortcut->setEnabled(false); // Escape closes then, as in any dialog
    }
    if (m_cancelled)
        return;
    // reset() is what stops the delayed show.
    auto *bar = findChild<QProgressBar *>();
    const int percent = bar->value();
    const bool closes = autoClose();
    setAutoClose(false);
    reset();
    setAutoClose(closes);
    bar->setValue(percent);
}

void DownloadDialog::show_failure()
{
    const QString reason = error_text();
    if (auto *label = findChild<QLabel *>(); label && !reason.isEmpty()) {
        label->setToolTip(plain_tool_tip(reason));
        label->setAccessibleDescription(reason);
    }
    if (m_has_been_shown)
        show(); // the bar at 100 has hidden it
}

void DownloadDialog::on_download_cancelled()
{
    trace("Download cancelled by user!");
    if (m_outcome == DownloadOutcome::Completed || m_outcome == DownloadOutcome::Failed)
        return;
    m_cancelled = true;
    show_state(QT_TR_NOOP("Descarga cancelada"));
    cancel();
}

void DownloadDialog::show_progress(int percent)
{
    if (m_cancelled || m_outcome != DownloadOutcome::Pending)
        return;
    // Once shown, QProgressDialog::setValue() would run events, in which the host may delete the dialog.
    if (!m_has_been_shown) {
        setValue(percent);
        return;
    }
    findChild<QProgressBar *>()->setValue(percent);
    if (percent == maximum() && autoReset() && !m_is_executing) // hiding would end exec()
        reset();
}

void DownloadDialog::closeEvent(QCloseEvent *event)
{
    // As in QProgressDialog, but a host may delete the dialog when it hears of the cancel.
    const QPointer<DownloadDialog> still_here(this);
    if (m_outcome == DownloadOutcome::Pending && !m_cancelled)
        Q_EMIT canceled();
    if (still_here)
        QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call): QProgressDialog would cancel
}

void DownloadDialog::showEvent(QShowEvent *event)
{
    m_has_been_shown = true;
    if (m_outcome == DownloadOutcome::Failed && !event->spontaneous())
        m_closing->start(k_outcome_time); // one shown later is to be read as well
    QProgressDialog::showEvent(event);
}

} // namespace my_classes
