// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/my_classes.h>

#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolBar>

#include <cstdio>

static_assert(MY_CLASSES_VERSION >= MY_CLASSES_VERSION_CHECK(0, 1, 0));

namespace {

const QString k_directory_at_load = my_classes::app_directory; // no application object exists yet

int failures = 0;

void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "consumer: %s\n", what);
    ++failures;
}

} // namespace

/// Uses every class once. The argument is the directory in which the library has to find its icons.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    const QString expected = application.arguments().value(1);
    check(k_directory_at_load == expected, qPrintable("icons looked for in " + k_directory_at_load));
    check(my_utils::get_app_directory() == my_classes::app_directory, "the directory changes");

    my_classes::MainWindow window;
    window.show();
    my_classes::CustomTextEditor *editor = window.text_editor;
    check(!editor->toolbar->actions().constFirst()->icon().pixmap(16).isNull(), "no icon");

    auto *tab = new my_classes::CustomTab;
    my_classes::EditableTabWidget tabs;
    tabs.addTab(tab, QStringLiteral("Chapter"));
    my_classes::SearchDialog search_dialog(editor->text_edit);
    my_classes::DownloadDialog download_dialog(QStringLiteral("none:"), QString(), QString());
    my_classes::TableDimensionInputDialog table_dialog;
    my_classes::ImageSizeInputDialog image_dialog(16, 9);
    QTextDocument document;
    my_classes::CustomHighlighter highlighter(&document);
    highlighter.setMisspelled({QStringLiteral("chaptre")});
    check(my_spellchecker::MySpellChecker(QStringLiteral("en")).check(QStringLiteral("A chaptre")).size() == 1,
          "no spelling");
    check(&my_msgboxes::confirm_warning_yes_no != nullptr, "no confirmation box");
    return failures == 0 ? 0 : 1;
}
