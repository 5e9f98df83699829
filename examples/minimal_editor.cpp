// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// An editor in a window of its own, filled from HTML, that tells what its spell check found.

#include <my_classes/my_classes.h>

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    const bool has_dictionary = my_spellchecker::MySpellChecker::is_available(QStringLiteral("en"));
    if (!has_dictionary)
        qWarning("No English dictionary is installed: spelling is not checked.");
    my_classes::CustomTextEditor editor(QFont(QStringLiteral("Times new roman"), 14), nullptr,
                                        has_dictionary ? QStringLiteral("en") : QString());
    QObject::connect(&editor, &my_classes::CustomTextEditor::check_spelling_done, &editor,
                     [](const QSet<QString> &misspelled) { qInfo() << "misspelled:" << misspelled; });
    editor.set_html_content(QStringLiteral("<h1>Chapter 1</h1><p>It was a <b>drak</b> and stormy night.</p>"));
    editor.check_spelling();

    editor.resize(900, 600);
    editor.show();
    return QApplication::exec();
}
