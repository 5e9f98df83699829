// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/main_window.h>

#include <QtWidgets/QApplication>

#include <cstdio>
#include <stdexcept>

namespace {

/// Shows the window until it is closed. Returns the exit status.
int run_editor()
{
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
