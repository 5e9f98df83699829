// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// A minimal Qt Widgets program, what opening the editor is compared with: a window with a text area in it or, with
// --empty, nothing at all, which spares Qt the loading of fonts.

#include "first_paint.h"

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTextEdit>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setGeometry(100, 100, 800, 600);
    if (!application.arguments().contains(QStringLiteral("--empty")))
        window.setCentralWidget(new QTextEdit(QStringLiteral("Text")));
    window.show();
    const bench::EndAtFirstPaint end;
    return QApplication::exec();
}
