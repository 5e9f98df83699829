// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/http_server.h"
#include "support/test_support.h"

#include <my_classes/download_dialog.h>
#include <my_classes/file_downloader.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include <array>
#include <atomic>
#include <fcntl.h>
#include <sys/stat.h>

using namespace my_classes;
using namespace Qt::StringLiterals;
using test_support::HttpServer;
using test_support::standard_output_of;

namespace {

QByteArray content_of(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QByteArray noise(qsizetype words)
{
    QByteArray bytes(words * 4, Qt::Uninitialized);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(bytes.data()), words);
    return bytes;
}

qsizetype entries(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

void click_button(DownloadDialog &dialog)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
}

} // namespace

class TstDownload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void outcome_data();
    void outcome();
    void progress_is_truncated();
    void slow_disk_holds_the_server_back();
    void cancel_counts_only_while_it_downloads();
    void cancelled_at_any_moment();
    void nothing_is_left_over();

    void dialog_success();
    void dialog_failure();
    void dialog_cancelled_at_any_moment();
    void dialog_destroyed_at_any_moment();

private:
    QString target() const { return m_directory->filePath(u"download"_s); }

    std::unique_ptr<QTemporaryDir> m_directory;
    HttpServer m_server;
    const QByteArray m_body = noise(750'000);
};

void TstDownload::init()
{
    test_support::fail_on_warnings();
    m_directory = std::make_unique<QTemporaryDir>();
    m_server.answers = {
        {"/whole", HttpServer::status("200 OK", m_body)},
        {"/drip", HttpServer::drip(m_body, 20, 2)},
        {"/missing", HttpServer::status("404 Not Found", "no such page")},
    };
}

void TstDownload::outcome_data()
{
    QTest::addColumn<HttpServer::Answer>("answer");
    QTest::addColumn<bool>("success");
    QTest::addColumn<QByteArray>("content"); // of the file; a failed transfer may lack the end
    QTest::addColumn<bool>("progress");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("path");

    const auto row = [this](const char *name, const HttpServer::Answer &answer, bool success, const QByteArray &content,
                            bool progress, const QString &url = {}, const QString &path = {}) {
        QTest::newRow(name) << answer << success << content << progress
                            << (url.isNull() ? m_server.url("/answer") : url) << path;
    };
    const QByteArray ok = "200 OK";
    const QByteArray length = "Content-Length: " + QByteArray::number(m_body.size()) + "\r\n";
    const QByteArray half = m_body.left(m_body.size() / 2);
    const QByteArray large(8'000'000, 'x');
    const QByteArray deflate = "Content-Encoding: deflate\r\n";
    const QByteArray chunked = HttpServer::header(ok, "Transfer-Encoding: chunked\r\n") +
                               QByteArray::number(m_body.size(), 16) + "\r\n" + m_body + "\r\n0\r\n\r\n";
    const HttpServer::Answer whole = HttpServer::status(ok, m_body);
    row("whole", whole, true, m_body, true);
    row("empty", HttpServer::status(ok), true, "", false);
    row("no length", HttpServer::raw(HttpServer::header(ok, "") + m_body, true), true, m_body, false);
    row("chunked", HttpServer::raw(chunked, false), true, m_body, false);
    row("compressed", HttpServer::status(ok, qCompress(m_body).mid(4), deflate), true, m_body, false);
    row("compressed strongly", HttpServer::status(ok, qCompress(large).mid(4), deflate), true, large, false);
    row("closed half way", HttpServer::raw(HttpServer::header(ok, length) + half, true), false, half, true);
    // Qt sees no error in this one, as it sometimes does not when the connection is closed half way.
    row("no body", HttpServer::raw(HttpServer::header("204 No Content", length), false), false, "", true);
    row("404", HttpServer::status("404 Not Found", "no such page"), false, "no such page", true);
    row("redirect", HttpServer::status("302 Found", "not this", "Location: /whole\r\n"), true, m_body, true);
    row("unknown scheme", whole, false, "", false, u"nothing://127.0.0.1/"_s);
    row("empty URL", whole, false, "", false, u""_s);
    row("no such folder", whole, false, "no file", false, {}, u"/no/such/folder/file"_s);
    row("full disk", whole, false, "", true, {}, u"/dev/full"_s);
}

void TstDownload::outcome()
{
    QFETCH(HttpServer::Answer, answer);
    QFETCH(bool, success);
    QFETCH(QByteArray, content);
    QFETCH(QString, url);
    QFETCH(QString, path);
    m_server.answers["/answer"] = answer;
    const QString file_path = path.isEmpty() ? target() : path;

    FileDownloader downloader(url, file_path);
    QSignalSpy finished(&downloader, &FileDownloader::download_finished);
    QSignalSpy progress(&downloader, &FileDownloader::progress_updated);
    downloader.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 20'000);
    QCOMPARE(finished[0][0].toBool(), success);
    if (path != u"/dev/full")
        QVERIFY(success ? content_of(file_path) == content : content.startsWith(content_of(file_path)));
    QTEST(!progress.isEmpty(), "progress");
    if (success && !progress.isEmpty())
        QCOMPARE(progress.last()[0].toInt(), 100);
    QVERIFY(!downloader.reply);
}

void TstDownload::progress_is_truncated()
{
    m_server.answers["/thirds"] = HttpServer::drip("abc", 3, 400); // Qt reports every 100 ms at most
    FileDownloader downloader(m_server.url("/thirds"), target());
    QSignalSpy progress(&downloader, &FileDownloader::progress_updated);
    downloader.start();
    QTRY_VERIFY(!progress.isEmpty() && progress.last()[0] == 100);
    QCOMPARE(progress.first()[0].toInt(), 66);
}

void TstDownload::slow_disk_holds_the_server_back()
{
    // The file is a pipe that the test empties slowly. What the server has sent ahead of it is in the memory of the
    // downloader or of the system's sockets, which take a few megabytes.
    constexpr qint64 k_size = 96'000'000;
    QPointer<QTcpSocket> socket;
    m_server.answers["/redirect"] = HttpServer::status("302 Found", "", "Location: /large\r\n");
    m_server.answers["/large"] = [&socket](QTcpSocket *asking) {
        socket = asking;
        HttpServer::status("200 OK", QByteArray(k_size, 'x'))(socket);
    };
    const QByteArray path = QFile::encodeName(target());
    QCOMPARE(mkfifo(path.constData(), 0600), 0);
    const int pipe = open(path.constData(), O_RDONLY | O_NONBLOCK);
    for (const char *url : {"/large", "/redirect"}) {
        FileDownloader downloader(m_server.url(url), target());
        QSignalSpy finished(&downloader, &FileDownloader::download_finished);
        socket.clear();
        downloader.start();
        QTRY_VERIFY(socket);
        qint64 arrived = 0;
        qint64 farthest_ahead = 0;
        QByteArray block(128 * 1024, Qt::Uninitialized);
        for (bool ended = false; !ended;) {
            ended = !finished.isEmpty();
            arrived += qMax<qint64>(0, read(pipe, block.data(), size_t(block.size())));
            farthest_ahead = qMax(farthest_ahead, k_size - (socket ? socket->bytesToWrite() : 0) - arrived);
            QTest::qWait(1);
        }
        QVERIFY(finished[0][0].toBool());
        QCOMPARE(arrived, k_size);
        QVERIFY2(farthest_ahead < 24'000'000, QByteArray::number(farthest_ahead));
    }
    close(pipe);
}

void TstDownload::cancel_counts_only_while_it_downloads()
{
    FileDownloader downloader(m_server.url("/whole"), target());
    QSignalSpy cancelled(&downloader, &FileDownloader::download_cancelled);
    QSignalSpy finished(&downloader, &FileDownloader::download_finished);
    QCOMPARE(standard_output_of([&] { downloader.cancel(); }), u"FileDownloader cancelled\n");
    QCOMPARE(cancelled.size(), 1);
    downloader.start();
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!downloader.is_cancelled);
    QCOMPARE(standard_output_of([&] { downloader.cancel(); }), u"FileDownloader cancelled\n");
    QCOMPARE(cancelled.size(), 2);
    QVERIFY(downloader.isRunning()); // idle
    downloader.quit();
    QVERIFY(downloader.wait(5000));
    QCOMPARE(finished.size(), 1);
    QVERIFY(finished[0][0].toBool());
    QCOMPARE(content_of(target()), m_body);
}

void TstDownload::cancelled_at_any_moment()
{
    QRandomGenerator random(50);
    for (int i = 0; i < 50; ++i) {
        const bool fast = i % 2;
        FileDownloader downloader(m_server.url(fast ? "/whole" : "/drip"), target());
        std::atomic<int> successes = 0;
        std::atomic<int> failures = 0;
        int ended_before = 0;
        const auto on_finished = [&](bool success) { ++(success ? successes : failures); };
        const auto on_cancelled = [&] {
            QThread::msleep(5); // time for a transfer that is through to overtake
            ended_before = successes + failures;
        };
        connect(&downloader, &FileDownloader::download_finished, this, on_finished, Qt::DirectConnection);
        connect(&downloader, &FileDownloader::download_cancelled, this, on_cancelled, Qt::DirectConnection);
        downloader.start();
        QTest::qWait(i < 10 ? 0 : random.bounded(fast ? 12 : 100));
        standard_output_of([&] { downloader.cancel(); });
        QTRY_COMPARE(successes + failures, 1);
        QCOMPARE(successes.load(), ended_before); // whole, unless cancelled first
        QCOMPARE(content_of(target()), successes ? m_body : "no file");
        QFile::remove(target());
    }
}

void TstDownload::nothing_is_left_over()
{
    const auto download = [this] {
        FileDownloader downloader(m_server.url("/missing"), target());
        QSignalSpy finished(&downloader, &FileDownloader::download_finished);
        downloader.start();
        return finished.wait(20'000);
    };
    QVERIFY(download()); // what Qt opens once and keeps
    QTRY_VERIFY(!m_server.findChild<QTcpSocket *>());
    const qsizetype threads = entries(u"/proc/self/task"_s);
    const qsizetype descriptors = entries(u"/proc/self/fd"_s);
    for (int i = 0; i < 500; ++i)
        QVERIFY(download());
    QTRY_VERIFY(!m_server.findChild<QTcpSocket *>());
    QTRY_VERIFY(entries(u"/proc/self/task"_s) <= threads); // fewer: the idle threads of Qt's own pools end
    QVERIFY(entries(u"/proc/self/fd"_s) <= descriptors);
}

void TstDownload::dialog_success()
{
    DownloadDialog dialog(m_server.url("/drip"), target(), u"Fetching"_s);
    QCOMPARE(dialog.labelText(), u"Fetching");
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    QTRY_COMPARE(accepted.size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.labelText(), u"Descarga completada");
    QCOMPARE(content_of(target()), m_body);
    QCOMPARE(standard_output_of([&] { dialog.close(); }), QString());
}

void TstDownload::dialog_failure()
{
    DownloadDialog never_shown(m_server.url("/whole"), u"/no/such/folder/file"_s, u"Fetching"_s);
    QTRY_VERIFY(never_shown.isVisible());
    QCOMPARE(never_shown.labelText(), u"Error en la descarga");
    QCOMPARE(standard_output_of([&] { click_button(never_shown); }), QString());
    QVERIFY(!never_shown.isVisible());

    DownloadDialog hidden_at_100(m_server.url("/missing"), target(), u"Fetching"_s);
    hidden_at_100.show();
    QTRY_COMPARE(hidden_at_100.labelText(), u"Error en la descarga");
    QVERIFY(hidden_at_100.isVisible());
    QElapsedTimer shown_for;
    shown_for.start();
    QCOMPARE(standard_output_of([&] { QTRY_VERIFY_WITH_TIMEOUT(!hidden_at_100.isVisible(), 60'000); }), QString());
    QVERIFY(shown_for.elapsed() > 9000); // long enough to be read
}

void TstDownload::dialog_cancelled_at_any_moment()
{
    const std::array<std::function<void(DownloadDialog &)>, 3> ways = {
        click_button,
        [](DownloadDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](DownloadDialog &dialog) { dialog.close(); },
    };
    QRandomGenerator random(52);
    int cancelled = 0;
    for (std::size_t i = 0; i < 45; ++i) {
        DownloadDialog dialog(m_server.url("/drip"), target(), u"Fetching"_s);
        QSignalSpy finished(dialog.downloader.get(), &FileDownloader::download_finished);
        dialog.show();
        dialog.activateWindow();
        QTest::qWait(i < 6 ? 0 : random.bounded(60));
        if (!dialog.isVisible())
            continue; // too late
        ++cancelled;
        QCOMPARE(standard_output_of([&] { ways[i % 3](dialog); }),
                 u"FileDownloader cancelled\nDownload cancelled by user!\n");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.labelText(), u"Descarga cancelada");
        QTRY_COMPARE(finished.size(), 1);
        QTRY_VERIFY(!QFile::exists(target()));
        Q_EMIT dialog.downloader->progress_updated(99); // one that was on its way
        QVERIFY(!dialog.isVisible() && dialog.findChild<QProgressBar *>()->value() != 99);
    }
    QVERIFY(cancelled >= 6);
}

void TstDownload::dialog_destroyed_at_any_moment()
{
    QRandomGenerator random(53);
    for (int i = 0; i < 50; ++i) {
        QPointer<DownloadDialog> dialog(new DownloadDialog(m_server.url("/drip"), target(), u"Fetching"_s));
        if (i < 10)
            delete dialog; // perhaps before its thread runs
        else {
            dialog->setMinimumDuration(0); // progress shows it
            QTimer::singleShot(i % 2 ? random.bounded(100) : 0, dialog, [dialog] { delete dialog; });
            // No event may run in here: the deletion would strike inside QProgressDialog.
            Q_EMIT dialog->downloader->progress_updated(1);
            Q_EMIT dialog->downloader->progress_updated(2);
            QCOMPARE(dialog->findChild<QProgressBar *>()->value(), 2);
        }
        QTRY_VERIFY(!dialog);
        if (QFile::exists(target()))
            QCOMPARE(content_of(target()), m_body); // it was through
        QFile::remove(target());
    }
}

MY_CLASSES_TEST_MAIN(TstDownload)
#include "tst_download.moc"
