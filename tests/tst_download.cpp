// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/http_server.h"
#include "support/test_support.h"

#include <QtCore/QMutex>
#include <QtCore/QSemaphore>
#include <QtGui/QHelpEvent>
#include <QtNetwork/QSslConfiguration>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolTip>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

QByteArray noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator random(1);
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.generate()); });
    return bytes;
}

qsizetype entries(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

const QString k_success = u"success"_s;
const QString k_failure = u"failure"_s;
const QString k_cancelled = u"cancelled"_s;

/// A download and what it says, in the order in which it says it.
class Download
{
public:
    Download(const QString &url, const QString &path)
        : worker(url, path)
    {
        hear(&FileDownloader::download_cancelled, [this] { note(k_cancelled); });
        hear(&FileDownloader::download_finished, [this](bool success) {
            before_end();
            note(success ? k_success : k_failure);
        });
    }

    template<typename Signal, typename Slot>
    void hear(Signal signal, Slot slot)
    {
        QObject::connect(&worker, signal, &worker, slot, Qt::DirectConnection);
    }

    QStringList heard() const
    {
        const QMutexLocker lock(&m_guard);
        return m_heard;
    }

    std::function<void()> before_end = [] {};

private:
    void note(const QString &what)
    {
        const QMutexLocker lock(&m_guard);
        m_heard << what;
    }

    mutable QMutex m_guard;
    QStringList m_heard;

public:
    FileDownloader worker; // goes first: its thread notes
};

} // namespace

class TstDownload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fail_on_warnings();
        m_directory = std::make_unique<QTemporaryDir>();
        m_server.answers = {
            {"/whole", HttpServer::status("200 OK", m_body)},
            {"/drip", HttpServer::drip(m_body, 20, 2)},
            {"/stalled", HttpServer::raw(HttpServer::header("200 OK", "Content-Length: 9\r\n") + "half", false)},
            {"/missing", HttpServer::status("404 Not Found", "no such page")},
        };
    }

    void outcome_data()
    {
        QTest::addColumn<HttpServer::Answer>("answer");
        QTest::addColumn<QString>("url");  // empty: that of the answer
        QTest::addColumn<QString>("path"); // empty: a new file
        QTest::addColumn<bool>("success");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("progress");

        const auto served = [](const char *name, const HttpServer::Answer &answer, bool success,
                               const QByteArray &content, bool progress) {
            QTest::newRow(name) << answer << QString() << QString() << success << content << progress;
        };
        const QByteArray ok = "200 OK";
        const QByteArray length = "Content-Length: " + QByteArray::number(m_body.size()) + "\r\n";
        const QByteArray half = m_body.left(m_body.size() / 2);
        const QByteArray chunked = HttpServer::header(ok, "Transfer-Encoding: chunked\r\n") +
                                   QByteArray::number(m_body.size(), 16) + "\r\n" + m_body + "\r\n0\r\n\r\n";
        served("whole", HttpServer::status(ok, m_body), true, m_body, true);
        served("empty", HttpServer::status(ok), true, "", false);
        served("no length", HttpServer::raw(HttpServer::header(ok, "") + m_body, true), true, m_body, false);
        served("chunked with a length",
               HttpServer::raw(QByteArray(chunked).insert(15 + 2, "Content-Length: 9999999\r\n"), false), true, m_body,
               false);
        const QByteArray large(8'000'000, 'x');
        served("compressed strongly", HttpServer::status(ok, qCompress(large).mid(4), "Content-Encoding: deflate\r\n"),
               true, large, false);
        served("closed half way", HttpServer::raw(HttpServer::header(ok, length) + half, true), false, half, true);
        // Qt sees no error in this one; it is the deterministic case of what it may overlook in the one above.
        served("ends before an announced body", HttpServer::raw(HttpServer::header("204 No Content", length), false),
               false, "", true);
        served("length too small", HttpServer::raw(HttpServer::header(ok, "Content-Length: 3\r\n") + "four", false),
               true, "fou", true);
        served("404 with a body", HttpServer::status("404 Not Found", "no such page"), false, "no such page", true);
        served("redirect", HttpServer::status("302 Found", "not this", "Location: /whole\r\n"), true, m_body, true);
        served("redirect loop", HttpServer::status("302 Found", "", "Location: /answer\r\n"), false, "", false);
        served("no HTTP", HttpServer::raw("hello", true), false, "", false);

        const auto local = [this](const char *name, const QString &url, const QString &path,
                                  const QByteArray &content) {
            QTest::newRow(name) << HttpServer::status("200 OK", m_body) << url << path << false << content
                                << (path == u"/dev/full");
        };
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost);
        local("refused", u"http://127.0.0.1:%1/"_s.arg(closed.serverPort()), {}, "");
        local("unknown scheme", u"nothing://127.0.0.1/"_s, {}, "");
        local("empty URL", u" "_s, {}, "");
        local("no such folder", {}, u"/no/such/folder/file"_s, "no file");
        local("a directory", {}, u"/"_s, "no file");
        local("full disk", {}, u"/dev/full"_s, {});
    }

    void outcome()
    {
        QFETCH(HttpServer::Answer, answer);
        QFETCH(QString, url);
        QFETCH(QString, path);
        QFETCH(bool, success);
        QFETCH(QByteArray, content); // of a failed transfer Qt may hold back the end
        m_server.answers["/answer"] = answer;
        const QString file_path = path.isEmpty() ? target() : path;

        Download download(url.isEmpty() ? m_server.url("/answer") : url.trimmed(), file_path);
        FileDownloader &downloader = download.worker;
        QSignalSpy progress(&downloader, &FileDownloader::progress_updated);
        downloader.start();
        QTRY_COMPARE_WITH_TIMEOUT(download.heard(), QStringList{success ? k_success : k_failure}, 20'000);
        if (path != u"/dev/full")
            QVERIFY(success ? content_of(file_path) == content : content.startsWith(content_of(file_path)));
        QTEST(!progress.isEmpty(), "progress");
        if (success && !progress.isEmpty())
            QCOMPARE(progress.last()[0].toInt(), 100);
        QCOMPARE(downloader.error_text().isEmpty(), success);
        QVERIFY(!downloader.reply);
        QTRY_COMPARE(downloader.isRunning(), path.isEmpty() || path == u"/dev/full"); // idles after a request
    }

    void slow_disk_holds_the_server_back()
    {
        // Another process serves, one that would rather speak HTTP/2. The file is a pipe: what has arrived here and is
        // not in the pipe is in the memory of this process.
        constexpr qint64 k_size = 64'000'000;
        const QString certificate = m_directory->filePath(u"certificate"_s);
        QProcess::execute(u"openssl"_s,
                          u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -batch "
                          "-subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1 -keyout"_s.split(u' ') +
                              QStringList{m_directory->filePath(u"key"_s), u"-out"_s, certificate});
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost);
        const QString port = QString::number(closed.serverPort());
        closed.close();

        QFile large(m_directory->filePath(u"large"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(k_size));
        QFile configuration(m_directory->filePath(u"nginx.conf"_s));
        QVERIFY(configuration.open(QIODevice::WriteOnly));
        configuration.write(
            "daemon off; master_process off; pid pid; error_log log; events {}\n"
            "http { access_log access; client_body_temp_path t; proxy_temp_path t; fastcgi_temp_path t;\n"
            "uwsgi_temp_path t; scgi_temp_path t; server { root .; ssl_certificate certificate;\n"
            "ssl_certificate_key key; rewrite ^/moved$ /large redirect; listen 127.0.0.1:" +
            port.toLatin1() + " ssl http2; } }");
        configuration.close();
        QProcess server;
        server.start(u"nginx"_s, {u"-p"_s, m_directory->path(), u"-c"_s, u"nginx.conf"_s, u"-e"_s, u"log"_s});
        const auto is_up = [&] {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, port.toUShort());
            return socket.waitForConnected(1000);
        };
        QTRY_VERIFY(is_up());
        const QString url = u"https://127.0.0.1:%1/moved"_s.arg(port);
        Download untrusted(url, target());
        untrusted.worker.start();
        QTRY_COMPARE(untrusted.heard(), QStringList{k_failure});
        QVERIFY(QFile::remove(target()));

        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        const auto reset = qScopeGuard([usual = trusting] { QSslConfiguration::setDefaultConfiguration(usual); });
        trusting.addCaCertificates(certificate);
        QSslConfiguration::setDefaultConfiguration(trusting);
        QCOMPARE(mkfifo(QFile::encodeName(target()).constData(), 0600), 0);
        const int pipe = open(QFile::encodeName(target()).constData(), O_RDONLY | O_NONBLOCK);
        const auto close_pipe = qScopeGuard([pipe] { close(pipe); });
        const auto memory = [] {
            return content_of(u"/proc/self/statm"_s).split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
        };
        const qint64 memory_before = memory();
        Download download(url, target());
        download.worker.start();
        qint64 arrived = 0;
        QByteArray block(128 * 1024, Qt::Uninitialized);
        const auto take = [&] { arrived += qMax<qint64>(0, read(pipe, block.data(), size_t(block.size()))); };
        QTRY_VERIFY((take(), arrived > 0));
        QTest::qWait(500);
        const qint64 taken = memory() - memory_before;
        for (; download.heard().isEmpty(); QTest::qWait(1))
            take();
        take();
        QCOMPARE(download.heard(), QStringList{k_success});
        QCOMPARE(arrived, k_size);
        QVERIFY2(taken < 24'000'000, QByteArray::number(taken));
        server.terminate();
        server.waitForFinished();
        QVERIFY(content_of(m_directory->filePath(u"access"_s)).contains("GET /large HTTP/1.1"));
    }

    void cancelled_at_any_moment()
    {
        QRandomGenerator random(50);
        for (int i = 0; i < 50; ++i) {
            const bool fast = i % 2;
            Download download(m_server.url(fast ? "/whole" : "/drip"), target());
            download.hear(&FileDownloader::download_cancelled,
                          [] { QThread::msleep(5); }); // time for a transfer that is through to overtake
            download.worker.start();
            QTest::qWait(i < 10 ? 0 : random.bounded(fast ? 12 : 100));
            download.worker.cancel();
            QTRY_COMPARE(download.heard().size(), 2);
            const bool too_late = download.heard() == QStringList{k_success, k_cancelled};
            QVERIFY(too_late || download.heard() == (QStringList{k_cancelled, k_failure}));
            QCOMPARE(content_of(target()), too_late ? m_body : "no file");
            QFile::remove(target());
        }
    }

    void cancelled_before_and_after_the_transfer()
    {
        Download download(m_server.url("/whole"), target());
        QCOMPARE(standard_output_of([&] { download.worker.cancel(); }), u"FileDownloader cancelled\n");
        QVERIFY(download.worker.is_cancelled);
        download.worker.start(); // forgets it
        QTRY_COMPARE(download.heard(), (QStringList{k_cancelled, k_success}));
        QVERIFY(!download.worker.is_cancelled);
        download.worker.cancel();
        download.worker.quit();
        QVERIFY(download.worker.wait(5000));
        QCOMPARE(download.heard(), (QStringList{k_cancelled, k_success, k_cancelled}));
        QCOMPARE(content_of(target()), m_body);
    }

    void cancelled_while_the_end_is_told()
    {
        QSemaphore telling, cancelled;
        Download download(m_server.url("/whole"), target());
        download.before_end = [&] {
            telling.release();
            cancelled.acquire();
        };
        download.worker.start();
        QTRY_VERIFY(telling.available());
        download.worker.cancel();
        cancelled.release();
        QTRY_COMPARE(download.heard(), (QStringList{k_success, k_cancelled}));
        QCOMPARE(content_of(target()), m_body);
    }

    void cancelled_before_the_file_is_opened()
    {
        QFile file(target());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        Download download(m_server.url("/whole"), target());
        download.hear(&QThread::started, [&] { download.worker.cancel(); });
        download.worker.start();
        QTRY_COMPARE(download.heard(), (QStringList{k_cancelled, k_failure}));
        QCOMPARE(content_of(target()), "mine");
    }

    void cancelled_with_an_unusable_address()
    {
        for (int i = 0; i < 50; ++i) { // no warning, whenever it comes
            Download download(u"nothing://127.0.0.1/"_s, target());
            download.worker.start();
            while (!download.worker.reply && download.heard().isEmpty())
                QThread::yieldCurrentThread();
            download.worker.cancel();
            QTRY_COMPARE(download.heard().size(), 2);
        }
    }

    void destroyed_during_a_redirect()
    {
        bool is_asked = false;
        m_server.answers["/redirect"] = HttpServer::status("302 Found", "", "Location: /silent\r\n");
        m_server.answers["/silent"] = [&](QTcpSocket *) { is_asked = true; };
        auto downloader = std::make_unique<FileDownloader>(m_server.url("/redirect"), target());
        downloader->start();
        QTRY_VERIFY(is_asked && QFile::exists(target()));
        downloader.reset();
        QVERIFY(!QFile::exists(target()));
    }

    void nothing_is_left_over()
    {
        const auto download_once = [this] {
            Download download(m_server.url("/missing"), target());
            download.worker.start();
            QTRY_VERIFY(!download.heard().isEmpty());
        };
        download_once(); // what Qt opens once and keeps
        const auto server_sockets = [this] { return m_server.findChildren<QTcpSocket *>().size(); };
        QTRY_COMPARE(server_sockets(), 0);
        const qsizetype threads = entries(u"/proc/self/task"_s);
        const qsizetype descriptors = entries(u"/proc/self/fd"_s);
        for (int i = 0; i < 500; ++i)
            download_once();
        QTRY_COMPARE(server_sockets(), 0);
        QTRY_VERIFY(entries(u"/proc/self/task"_s) <= threads); // fewer: the idle threads of Qt's own pools end
        QVERIFY(entries(u"/proc/self/fd"_s) <= descriptors);
    }

    void dialog_exec_returns_at_the_outcome()
    {
        for (int i = 0; i < 20; ++i) {
            DownloadDialog dialog(m_server.url("/whole"), target(), u"Fetching"_s);
            QThread::msleep(i % 5 * 10); // a host that connects late
            QSignalSpy ended(&dialog, &DownloadDialog::download_ended);
            QCOMPARE(dialog.exec(), int(QDialog::Accepted));
            QCOMPARE(dialog.outcome(), DownloadOutcome::Completed);
            QCOMPARE(dialog.labelText(), u"Descarga completada");
            QCOMPARE(dialog.exec(), int(QDialog::Accepted));
            QTRY_COMPARE(ended.size(), 1);
            QVERIFY(dialog.error_text().isEmpty() && dialog.http_status() == 200);
            QCOMPARE(content_of(target()), m_body);
            QCOMPARE(standard_output_of([&] { dialog.close(); }), QString());
        }

        DownloadDialog missing(m_server.url("/missing"), target(), u"Fetching"_s);
        QSignalSpy canceled(&missing, &QProgressDialog::canceled);
        bool is_seen = false;
        connect(&missing, &DownloadDialog::download_ended, &missing, [&](DownloadOutcome outcome) {
            is_seen = missing.isVisible() && outcome == DownloadOutcome::Failed;
            auto *button = missing.findChild<QPushButton *>();
            QCOMPARE(button->text(), u"Close");
            QTimer::singleShot(100, button, &QPushButton::click);
        });
        QCOMPARE(missing.exec(), int(QDialog::Rejected));
        QVERIFY(is_seen && canceled.isEmpty() && !missing.wasCanceled());
        QCOMPARE(missing.error_text(), u"The server answered: 404 Not Found");
        QCOMPARE(missing.http_status(), 404);
        QCOMPARE(missing.findChild<QLabel *>()->toolTip(), missing.error_text());
        QCOMPARE(missing.findChild<QLabel *>()->accessibleDescription(), missing.error_text());
    }

    void dialog_tool_tip()
    {
        const QString message = u"Fetching R&D/"_s + QString(2000, u'x');
        DownloadDialog dialog(m_server.url("/stalled"), target(), message);
        dialog.show();
        auto *label = dialog.findChild<QLabel *>();
        QHelpEvent wanted(QEvent::ToolTip, {}, label->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(label, &wanted);
        QCOMPARE(QToolTip::text(), message);
        QToolTip::hideText();
    }

    void dialog_failure_is_seen_for_ten_seconds()
    {
        DownloadDialog never_shown(m_server.url("/whole"), target(), u"Fetching"_s);
        QSignalSpy canceled(&never_shown, &QProgressDialog::canceled);
        QTRY_COMPARE(never_shown.outcome(), DownloadOutcome::Completed);

        DownloadDialog late(m_server.url("/whole"), u"/no/such/folder/file"_s, u"Fetching"_s);
        DownloadDialog dialog(m_server.url("/missing"), target(), u"Fetching"_s);
        QSignalSpy progress(dialog.downloader.get(), &FileDownloader::progress_updated);
        dialog.show();
        QTRY_COMPARE(dialog.labelText(), u"Error en la descarga");
        QElapsedTimer shown_for;
        shown_for.start();
        QCOMPARE(progress.last()[0].toInt(), 100); // which hides it
        while (shown_for.elapsed() < 9000) {
            QVERIFY(dialog.isVisible() && !never_shown.isVisible());
            if (shown_for.elapsed() > 5000)
                late.show();
            QTest::qWait(100);
        }
        QCOMPARE(standard_output_of([&] { QTRY_VERIFY(!dialog.isVisible()); }), QString());
        QVERIFY(canceled.isEmpty() && !never_shown.wasCanceled());
        QTest::qWait(1000);
        QVERIFY(late.isVisible()); // its ten seconds have begun later
    }

    void dialog_failure_before_it_is_shown()
    {
        DownloadDialog dialog(m_server.url("/whole"), u"/no/such/folder/file"_s, u"Fetching"_s);
        QTRY_COMPARE(dialog.outcome(), DownloadOutcome::Failed);
        QVERIFY(!dialog.isVisible());
        QTimer::singleShot(50, &dialog, [&] {
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.labelText(), u"Error en la descarga");
            QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
        });
        QCOMPARE(standard_output_of([&] { QCOMPARE(dialog.exec(), int(QDialog::Rejected)); }), QString());
    }

    void dialog_cancel()
    {
        const std::function<void(DownloadDialog &)> ways[] = {
            [](auto &dialog) { QTest::mouseClick(dialog.template findChild<QPushButton *>(), Qt::LeftButton); },
            [](auto &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
            [](auto &dialog) { dialog.close(); },
        };
        for (const auto &cancel : ways) {
            DownloadDialog dialog(m_server.url("/stalled"), target(), u"Fetching"_s);
            QSignalSpy finished(dialog.downloader.get(), &FileDownloader::download_finished);
            QTRY_COMPARE(QFileInfo(target()).size(), 4);
            QTimer::singleShot(50, &dialog, [&] {
                cancel(dialog);
                QCOMPARE(dialog.labelText(), u"Descarga cancelada");
            });
            QCOMPARE(standard_output_of([&] { QCOMPARE(dialog.exec(), int(QDialog::Rejected)); }),
                     u"FileDownloader cancelled\nDownload cancelled by user!\n");
            QVERIFY(!dialog.isVisible() && dialog.wasCanceled());
            QCOMPARE(dialog.outcome(), DownloadOutcome::Cancelled);
            QTRY_COMPARE(finished.size(), 1);
            QVERIFY(!QFile::exists(target()));
            Q_EMIT dialog.downloader->progress_updated(70); // one that was on its way
            QVERIFY(!dialog.isVisible() && dialog.findChild<QProgressBar *>()->value() < 70);
        }
    }

    void dialog_destroyed_at_any_moment()
    {
        QRandomGenerator random(53);
        for (int i = 0; i < 30; ++i) {
            QWidget parent;
            QPointer<DownloadDialog> dialog(
                new DownloadDialog(m_server.url("/drip"), target(), u"Fetching"_s, &parent));
            dialog->setMinimumDuration(0); // progress shows it
            QTimer::singleShot(i % 2 ? random.bounded(80) : 0, dialog, [dialog] { delete dialog; });
            // No event may run in here: the deletion would strike inside QProgressDialog.
            Q_EMIT dialog->downloader->progress_updated(1);
            Q_EMIT dialog->downloader->progress_updated(2);
            QCOMPARE(dialog->findChild<QProgressBar *>()->value(), 2);
            QTRY_VERIFY(!dialog);
            if (QFile::exists(target()))
                QCOMPARE(content_of(target()), m_body);
            QFile::remove(target());
        }
    }

private:
    QString target() const { return m_directory->filePath(u"download"_s); }

    std::unique_ptr<QTemporaryDir> m_directory;
    HttpServer m_server;
    const QByteArray m_body = noise(3'000'000);
};

MY_CLASSES_TEST_MAIN(TstDownload)
#include "tst_download.moc"
