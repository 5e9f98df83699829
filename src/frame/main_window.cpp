// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/retranslation.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/main_window.h>

#include <QtWidgets/QVBoxLayout>

namespace my_classes {

MainWindow::MainWindow()
{
    new Retranslation(this, [this, title = QString()]() mutable {
        if (windowTitle() == title) // else it is the host's
            setWindowTitle(title = tr("MainWindow with CustomTextEditor"));
    });
    setGeometry(100, 100, 800, 600);

    text_editor = new CustomTextEditor(QFont(QStringLiteral("Times new roman"), 20), this);
    auto *column = new QVBoxLayout;
    column->addWidget(text_editor);
    auto *container = new QWidget;
    container->setLayout(column);
    setCentralWidget(container);
}

} // namespace my_classes
