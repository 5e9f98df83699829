// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/main_window.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <optional>
#include <stdexcept>

namespace {

/// Shows the window until it is closed. Returns the exit status.
int run_editor()
{
    // Outside a desktop session (root, a bare X server) Qt complains on standard error that this directory is not set.
    std::optional<QTemporaryDir> session;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR") && session.emplace().isValid())
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(session->path()));

    char program_name[] = "my_classes";
    char *arguments[] = {program_name, nullptr}; // the user's arguments are not handed to Qt
    int argument_count = 1;
    QApplication application(argument_count, arguments);

    my_classes::MainWindow window;
    window.show();
    QApplication::exec();
    return 0;
}

} // namespace

int main()
{
    try {
        return run_editor();
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "my_classes: %s Install a dictionary, in Debian the package hunspell-en-us.\n",
                     error.what());
        return 1;
    }
}
