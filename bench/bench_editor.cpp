// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// The editor against a plain QTextEdit with the same text at the same size, and spelling against the bare engine.

#include "book_text.h"
#include "measure.h"
#include "windows.h"

#include <my_classes/custom_highlighter.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <enchant.h>
#include <unistd.h>

namespace {

using bench::Windows;
using my_classes::CustomTextEditor;

template<typename Key>
void press(QTextEdit *area, Key key)
{
    QTest::keyClick(area, key);
    QCoreApplication::processEvents(); // with what it repaints
}

void measure_keys(Windows &windows, const QString &size)
{
    const struct
    {
        const char *name;
        QTextCursor::MoveOperation where;
        double limit;
    } places[] = {
        {"start", QTextCursor::Start, 1.15}, {"middle", QTextCursor::NoMove, 1.15}, {"end", QTextCursor::End, 2.5}};
    for (const auto &place : places) {
        windows.put_cursors(place.where);
        const int rounds = place.where == QTextCursor::End ? 101 : 41;
        bench::print_row(
            QStringLiteral("key press at the %1, %2").arg(QLatin1StringView(place.name), size),
            bench::alternate(
                rounds, [&] { press(windows.editor.text_edit, 'x'); }, [&] { press(&windows.plain, 'x'); }),
            place.limit);
        windows.put_cursors(place.where);
        const Qt::Key arrow = place.where == QTextCursor::End ? Qt::Key_Left : Qt::Key_Right;
        bench::print_row(
            QStringLiteral("arrow key at the %1, %2").arg(QLatin1StringView(place.name), size),
            bench::alternate(
                101, [&] { press(windows.editor.text_edit, arrow); }, [&] { press(&windows.plain, arrow); }),
            2.5);
    }
}

/// Time to ask the engine for every word of the text in turn.
double ask_for_every_word(const QString &text)
{
    EnchantBroker *broker = enchant_broker_init();
    EnchantDict *dictionary = enchant_broker_request_dict(broker, "en_US");
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    const double time = bench::milliseconds([&] {
        for (auto words = word.globalMatch(text); words.hasNext();) {
            const QByteArray utf8 = words.next().capturedView().toUtf8();
            enchant_dict_check(dictionary, utf8.constData(), utf8.size());
        }
    });
    enchant_broker_free_dict(broker, dictionary);
    enchant_broker_free(broker);
    return time;
}

void measure_checking(const QString &text, const QString &size)
{
    my_spellchecker::MySpellChecker checker(QStringLiteral("en_US"));
    checker.check(QStringLiteral("word")); // loads the dictionary
    const double every_word = ask_for_every_word(text);
    const double first = bench::milliseconds([&] { checker.check(text); });
    const double second = bench::milliseconds([&] { checker.check(text); });
    bench::print_row(QStringLiteral("checking the first time / every word asked, %1").arg(size), {first, every_word},
                     0.2);
    bench::print_row(QStringLiteral("checking the second time / the first, %1").arg(size), {second, first}, 0.2);
}

/// Median of three: one alone is at the mercy of the machine.
template<typename Measure>
double thrice(const Measure &measure)
{
    return bench::median({measure(), measure(), measure()});
}

double full_layout(QTextEdit *plain, const QString &text)
{
    return thrice([&] {
        return bench::milliseconds([&] {
            plain->setPlainText(text);
            plain->document()->documentLayout()->documentSize();
        });
    });
}

double marking(Windows &windows, const QSet<QString> &words)
{
    return thrice([&] {
        windows.editor.highlighter->setMisspelled({});
        windows.complete_layouts();
        return bench::milliseconds([&] { windows.editor.highlighter->setMisspelled(words); });
    });
}

void measure_marking(Windows &windows, const QString &text, const QString &size)
{
    const QSet<QString> misspelled = bench::words_to_mark(text);
    QSet<QString> few;
    for (const QString &word : misspelled) {
        if (few.size() < 50)
            few.insert(word);
    }
    bench::print_row(QStringLiteral("marking %1 words / one full layout, %2").arg(misspelled.size()).arg(size),
                     {marking(windows, misspelled), full_layout(&windows.plain, text)}, 1.25);
    // The same places underlined, so that only the number of listed words differs.
    QSet<QString> many = few;
    for (int i = 0; many.size() < 20'000; ++i)
        many.insert(QStringLiteral("xq%1").arg(i));
    bench::print_row(QStringLiteral("marking, 20,000 listed words / 50, %1").arg(size),
                     {marking(windows, many), marking(windows, few)}, 1.5);
    windows.editor.highlighter->setMisspelled(misspelled);
    windows.complete_layouts();
}

void measure_loading(Windows &windows, const QString &size)
{
    const QString html = windows.plain.toHtml();
    QTextEdit plain;
    plain.setFont(windows.editor.editor_font);
    plain.resize(windows.plain.size());
    plain.show();
    CustomTextEditor editor(windows.editor.editor_font);
    editor.resize(windows.editor.size());
    editor.show();
    bench::print_row(QStringLiteral("set_html_content / QTextEdit::setHtml, %1").arg(size),
                     bench::alternate(
                         3, [&] { editor.set_html_content(html); }, [&] { plain.setHtml(html); }),
                     1.2);
}

qint64 resident_kilobytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

void measure_hundredth_editor()
{
    std::vector<std::unique_ptr<CustomTextEditor>> editors;
    for (int i = 0; i < 99; ++i) {
        editors.push_back(std::make_unique<CustomTextEditor>(std::optional<QFont>()));
        editors.back()->spellchecker->check(QStringLiteral("helo"));
    }
    const qint64 before = resident_kilobytes();
    std::vector<double> times;
    constexpr int more = 10;
    for (int i = 0; i < more; ++i) {
        times.push_back(bench::milliseconds([&] {
            editors.push_back(std::make_unique<CustomTextEditor>(std::optional<QFont>()));
            editors.back()->spellchecker->check(QStringLiteral("helo"));
        }));
    }
    const auto kilobytes = static_cast<double>(resident_kilobytes() - before) / more;
    bench::print_row(QStringLiteral("the 100th editor, ms (limit 10)"), {bench::median(times), 1}, 10);
    bench::print_row(QStringLiteral("the 100th editor, kB (limit 1024)"), {kilobytes, 1}, 1024);
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("ENCHANT_CONFIG_DIR", home.path().toUtf8());
    QApplication application(argc, argv);
    bench::print_header("ours ms", "plain ms");
    measure_hundredth_editor();
    for (const int words : {100'000, 1'000'000}) {
        const QString size = QStringLiteral("%L1 words").arg(words);
        const QString text = bench::book_text(words);
        measure_checking(text, size);
        {
            Windows windows(text);
            windows.editor.check_spelling(); // as a person writes: loaded, checked once
            measure_keys(windows, size);
        }
        Windows windows(text);
        measure_marking(windows, text, size);
        measure_loading(windows, size);
    }
    return 0;
}
