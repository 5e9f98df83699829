// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recovery_question.h"
#include "window.h"

#include <my_classes/diagnostic_output.h>
#include <my_classes/translations.h>

#include <QtCore/QCommandLineParser>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("my_classes"));
    QCoreApplication::setApplicationName(QStringLiteral("document_editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DOCUMENT_EDITOR_VERSION));
    QGuiApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Document Editor"));
    QGuiApplication::setDesktopFileName(QStringLiteral("my_classes_document_editor"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("my_classes_document_editor")));
    my_classes::set_diagnostic_output(false);
    my_classes::install_translation(QLocale(QLocale::English)); // as the program's own texts

    QCommandLineParser arguments;
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument(QStringLiteral("file"), QCoreApplication::translate("main", "Files to open"),
                                    QStringLiteral("[file...]"));
    arguments.process(application);
    const QStringList paths = arguments.positionalArguments();

    const bool has_recovered = document_editor::offer_recovery();
    if (!has_recovered || !paths.isEmpty()) {
        auto *window = new document_editor::Window;
        window->show();
        for (const QString &path : paths)
            window->open(path);
    }
    return QApplication::exec();
}
