// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// From the start of the process to the first painted window: the editor's program against a minimal one.

#include "first_paint.h"
#include "measure.h"

#include <my_classes/main_window.h>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <cstring>

namespace {

int show_editor(int argc, char *argv[])
{
    QApplication application(argc, argv);
    my_classes::MainWindow window;
    window.show();
    const bench::EndAtFirstPaint end;
    return QApplication::exec();
}

void run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed", qUtf8Printable(program));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1 && std::strcmp(argv[1], "--editor") == 0)
        return show_editor(argc, argv);
    const QTemporaryDir home;
    qputenv("ENCHANT_CONFIG_DIR", home.path().toUtf8());
    QCoreApplication application(argc, argv);
    const QString minimal = QCoreApplication::applicationDirPath() + QStringLiteral("/startup_minimal");
    const auto open_editor = [] { run(QCoreApplication::applicationFilePath(), {QStringLiteral("--editor")}); };
    const auto open_minimal = [&minimal] { run(minimal, {}); };
    const auto open_empty = [&minimal] { run(minimal, {QStringLiteral("--empty")}); };
    open_editor(); // both from a warm disk
    open_minimal();
    bench::print_header("ours ms", "plain ms");
    bench::print_row(QStringLiteral("opening the program to its first painted window"),
                     bench::alternate(21, open_editor, open_minimal), 1.3);
    bench::print_row(QStringLiteral("the same, against an empty window without fonts (no limit)"),
                     bench::alternate(21, open_editor, open_empty), 99);
    return 0;
}
