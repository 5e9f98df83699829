// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// The editor that marks words while they are written against the same editor that does not.

#include "book_text.h"
#include "measure.h"
#include "windows.h"

#include <my_classes/custom_highlighter.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace {

using my_classes::CustomTextEditor;

struct Window : bench::EditorWindow
{
    explicit Window(const QString &text)
    {
        editor.set_text_content(text);
        editor.check_spelling();
        editor.text_edit->document()->documentLayout()->documentSize(); // completes the layout
        QCoreApplication::processEvents();
    }

    void press(char key)
    {
        QTest::keyClick(editor.text_edit, key);
        QCoreApplication::processEvents(); // with what it repaints
    }
};

/// Milliseconds of the longest turn of the event loop until `done`.
template<typename Done>
double longest_turn(const Done &done)
{
    double longest = 0;
    while (!done())
        longest = std::max(longest, bench::milliseconds([] { QCoreApplication::processEvents(); }));
    return longest;
}

void measure_keys(const QString &text, const QString &size)
{
    Window marking(text);
    Window plain(text);
    const QSet<QString> all = plain.editor.highlighter->misspelled;
    marking.editor.highlighter->setMisspelled({});
    QCoreApplication::processEvents();
    marking.editor.set_marking_while_writing(true);
    const double longest = longest_turn([&] { return marking.editor.highlighter->misspelled.size() >= all.size(); });
    bench::print_row(QStringLiteral("longest turn while a text is marked, ms, %1").arg(size), {longest, 1}, 50);
    QTest::qWait(1'000); // the rest
    const std::pair<const char *, QTextCursor::MoveOperation> places[] = {{"start", QTextCursor::Start},
                                                                          {"end", QTextCursor::End}};
    for (const auto &[name, where] : places) {
        for (Window *window : {&marking, &plain})
            window->editor.text_edit->moveCursor(where);
        QTest::qWait(100);
        const QByteArray keys = "some words and more of them ";
        int ours = 0;
        int theirs = 0;
        bench::print_row(QStringLiteral("key press at the %1, marking / not, %2").arg(QLatin1StringView(name), size),
                         bench::alternate(
                             301, [&] { marking.press(keys[ours++ % keys.size()]); },
                             [&] { plain.press(keys[theirs++ % keys.size()]); }),
                         1.1);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("ENCHANT_CONFIG_DIR", home.path().toUtf8());
    QApplication application(argc, argv);
    bench::print_header("ours ms", "plain ms");
    CustomTextEditor editor({});
    for (const char *lang : {"es_ES", "en_US"}) { // dictionaries are loaded once for the process
        editor.set_lang(QString::fromLatin1(lang));
        editor.spellchecker->check(QStringLiteral("word"));
    }
    const auto change = [&](const char *lang) {
        return [&editor, lang] { editor.set_lang(QString::fromLatin1(lang)); };
    };
    const bench::Pair times = bench::alternate(51, change("es_ES"), change("en_US"));
    bench::print_row(QStringLiteral("set_lang, ms (limit 1)"), {std::max(times.ours, times.plain), 1}, 1);
    for (const int words : {10'000, 100'000, 1'000'000})
        measure_keys(bench::book_text(words), QStringLiteral("%L1 words").arg(words));
    return 0;
}
