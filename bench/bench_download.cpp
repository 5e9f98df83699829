// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// bench_download URL FILE [TIMES]
// Downloads TIMES times and prints, for each, the milliseconds from start() to download_finished(), and at the end how
// far the memory of the process grew over that before the first download, at its peak.

#include <my_classes/file_downloader.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <cstdio>

namespace {

/// A line of /proc/self/status, in kilobytes.
qint64 memory_kb(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    return -1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: bench_download URL FILE [TIMES]\n", stderr);
        return 2;
    }
    const qint64 before_kb = memory_kb("VmRSS:");
    for (int i = 0; i < arguments.value(3, QStringLiteral("1")).toInt(); ++i) {
        my_classes::FileDownloader downloader(arguments[1], arguments[2]);
        bool success = false;
        QObject::connect(&downloader, &my_classes::FileDownloader::download_finished, &application,
                         [&success](bool ok) {
                             success = ok;
                             QCoreApplication::quit();
                         });
        QElapsedTimer timer;
        timer.start();
        downloader.start();
        QCoreApplication::exec();
        std::printf("download_ms %lld\n", static_cast<long long>(timer.elapsed()));
        timer.start();
        downloader.quit();
        downloader.wait();
        std::printf("stop_ms %lld\n", static_cast<long long>(timer.elapsed()));
        if (!success) {
            std::fputs("bench_download: the download failed\n", stderr);
            return 1;
        }
    }
    std::printf("peak_growth_kb %lld\n", static_cast<long long>(memory_kb("VmHWM:") - before_kb));
    return 0;
}
