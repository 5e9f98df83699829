// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// Long texts in the whole editor, with statistics and 20,000 words marked, against a plain QTextEdit with the same text
// at the same size.

#include "book_text.h"
#include "measure.h"
#include "windows.h"

#include <my_classes/custom_highlighter.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <malloc.h>

#include <memory>

namespace {

using bench::finish_painting;
using bench::Windows;
using my_classes::CustomTextEditor;

/// With words marked, and after what is put off to quiet moments.
std::unique_ptr<Windows> marked_windows(const QString &text)
{
    auto windows = std::make_unique<Windows>(text);
    windows->editor.highlighter->setMisspelled(bench::words_to_mark(text));
    finish_painting();
    QTest::qWait(3000);
    return windows;
}

/// Both text areas, turn by turn, with what they repaint.
template<typename Step>
bench::Pair both(Windows &windows, int rounds, const Step &step)
{
    return bench::alternate(
        rounds,
        [&] {
            step(windows.editor.text_edit);
            finish_painting();
        },
        [&] {
            step(&windows.plain);
            finish_painting();
        });
}

void make_bold(QTextEdit *area)
{
    QTextCursor cursor = area->textCursor();
    cursor.select(QTextCursor::WordUnderCursor);
    QTextCharFormat bold;
    bold.setFontWeight(cursor.charFormat().fontWeight() == QFont::Bold ? QFont::Normal : QFont::Bold);
    cursor.mergeCharFormat(bold);
}

void measure_edits(Windows &windows, const QString &size, double limit)
{
    for (const auto where : {QTextCursor::Start, QTextCursor::NoMove}) {
        const QString place = where == QTextCursor::Start ? QStringLiteral("start") : QStringLiteral("middle");
        const auto row = [&](const char *what, const bench::Pair &times) {
            bench::print_row(QStringLiteral("%1, %2, %3").arg(QLatin1StringView(what), place, size), times, limit);
        };
        windows.put_cursors(where);
        row("key press", both(windows, 21, [](QTextEdit *area) { QTest::keyClick(area, 'x'); }));
        row("Return", both(windows, 11, [](QTextEdit *area) { QTest::keyClick(area, Qt::Key_Return); }));
        row("joining Backspace", both(windows, 11, [](QTextEdit *area) { QTest::keyClick(area, Qt::Key_Backspace); }));
        row("undo", both(windows, 5, [](QTextEdit *area) { area->undo(); }));
        row("bold on a word", both(windows, 11, make_bold));
    }
}

void measure_end(Windows &windows, const QString &size)
{
    windows.put_cursors(QTextCursor::End);
    bench::print_row(QStringLiteral("key press, end, %1").arg(size),
                     both(windows, 101, [](QTextEdit *area) { QTest::keyClick(area, 'x'); }), 1.5);
    bench::print_row(QStringLiteral("arrow key, end, %1").arg(size),
                     both(windows, 101, [](QTextEdit *area) { QTest::keyClick(area, Qt::Key_Left); }), 1.5);
}

void measure_scrolling(Windows &windows, const QString &size)
{
    const auto row = [&](const char *what, const bench::Pair &times) {
        bench::print_row(QStringLiteral("%1, %2").arg(QLatin1StringView(what), size), times, 1.3);
    };
    windows.put_cursors(QTextCursor::NoMove);
    row("Page Down", both(windows, 41, [](QTextEdit *area) { QTest::keyClick(area, Qt::Key_PageDown); }));
    row("wheel step", both(windows, 41, [](QTextEdit *area) {
            area->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        }));
    int step = 0;
    row("dragging the scroll bar, a repaint", both(windows, 41, [&step](QTextEdit *area) {
            QScrollBar *bar = area->verticalScrollBar();
            bar->setValue(static_cast<int>(static_cast<qint64>(bar->maximum()) * (++step / 2 % 40) / 40));
        }));
}

void measure_sizes(Windows &windows, const QString &size)
{
    const auto row = [&](const char *what, const bench::Pair &times) {
        bench::print_row(QStringLiteral("%1, %2").arg(QLatin1StringView(what), size), times, 1.3);
    };
    windows.put_cursors(QTextCursor::Start);
    constexpr int rounds = 11;
    int ours = 0;
    int plain = 0;
    const auto resize = [](QWidget &window, int &turn) {
        window.resize(window.width() + (++turn % 2 ? -10 : 10), window.height());
        finish_painting();
    };
    row("resize", bench::alternate(
                      rounds, [&] { resize(windows.editor, ours); }, [&] { resize(windows.plain, plain); }));
    const auto zoom = [&] {
        return bench::alternate(
            rounds,
            [&] {
                ++ours % 2 ? windows.editor.zoom_in() : windows.editor.zoom_out();
                finish_painting();
            },
            [&] {
                ++plain % 2 ? windows.plain.zoomIn(1) : windows.plain.zoomOut(1);
                finish_painting();
            });
    };
    zoom(); // or the first of both would load the letters for the other
    row("zoom step", zoom());
}

void measure_marking(Windows &windows, const QString &text, const QString &size)
{
    const QSet<QString> words = bench::words_to_mark(text);
    windows.editor.highlighter->setMisspelled({});
    finish_painting();
    const bench::Pair times = bench::alternate(
        3,
        [&] {
            windows.editor.highlighter->setMisspelled(words);
            finish_painting();
        },
        [&] {
            windows.plain.setPlainText(text);
            windows.plain.document()->documentLayout()->documentSize();
        });
    bench::print_row(QStringLiteral("marking %1 words / one full layout, %2").arg(words.size()).arg(size), times, 0.2);
}

/// Milliseconds of the longest wait between two turns of the event loop.
double longest_block(int milliseconds)
{
    double longest = 0;
    QElapsedTimer whole;
    whole.start();
    while (whole.elapsed() < milliseconds)
        longest =
            std::max(longest, bench::milliseconds([] { QCoreApplication::processEvents(QEventLoop::AllEvents, 0); }));
    return longest;
}

double megabytes_in_use()
{
    return static_cast<double>(mallinfo2().uordblks) / 1e6;
}

void measure_loading(const QString &text, const QString &size)
{
    QTextDocument source;
    source.setPlainText(text);
    const QString html = source.toHtml();
    Windows windows;
    const bench::Pair load = bench::alternate(
        3,
        [&] {
            windows.editor.set_html_content(html);
            finish_painting();
        },
        [&] {
            windows.plain.setHtml(html);
            finish_painting();
        });
    bench::print_row(QStringLiteral("set_html_content until the first paint, %1").arg(size), load, 1.1);

    bench::Pair blocks{};
    bench::Pair memory{};
    double before = 0;
    {
        QTextEdit plain;
        plain.resize(windows.plain.size());
        plain.show();
        finish_painting();
        before = megabytes_in_use();
        plain.setPlainText(text);
        finish_painting();
        blocks.plain = longest_block(5000);
        memory.plain = megabytes_in_use() - before;
    }
    CustomTextEditor editor(windows.editor.editor_font);
    editor.resize(windows.editor.size());
    editor.show();
    finish_painting();
    before = megabytes_in_use();
    editor.set_text_content(text);
    finish_painting();
    blocks.ours = longest_block(5000);
    memory.ours = megabytes_in_use() - before;
    bench::print_row(QStringLiteral("longest block of the event loop after loading, %1").arg(size), blocks, 1);
    bench::print_row(QStringLiteral("memory of the loaded text, MB, %1").arg(size), memory, 1.1);
}

void measure_table(Windows &windows, const QString &size)
{
    for (QTextEdit *area : {windows.editor.text_edit, &windows.plain})
        area->document()->rootFrame()->lastCursorPosition().insertTable(3, 3);
    finish_painting();
    windows.put_cursors(QTextCursor::Start);
    bench::print_row(QStringLiteral("key press with a table in the text, %1").arg(size),
                     both(windows, 11, [](QTextEdit *area) { QTest::keyClick(area, 'x'); }), 1.25);
}

void measure_growth()
{
    const auto press = [](QTextEdit *area) { QTest::keyClick(area, 'x'); };
    std::unique_ptr<Windows> shortest;
    std::unique_ptr<Windows> longest;
    for (const int words : {10'000, 30'000, 100'000, 300'000, 1'000'000}) {
        longest = marked_windows(bench::book_text(words));
        longest->put_cursors(QTextCursor::Start);
        bench::print_row(QStringLiteral("key press at the start, %L1 words").arg(words), both(*longest, 41, press),
                         words < 100'000 ? 1.5 : 0.5);
        if (!shortest)
            shortest = std::move(longest);
    }
    // Without the other, whose walk over its paragraphs leaves nothing of ours in the processor's cache.
    for (const auto where : {QTextCursor::Start, QTextCursor::NoMove, QTextCursor::End}) {
        const auto press_in = [&](Windows *windows) {
            windows->put_cursors(where);
            return [&, area = windows->editor.text_edit] {
                press(area);
                finish_painting();
            };
        };
        const char *place = where == QTextCursor::Start ? "start" : where == QTextCursor::End ? "end" : "middle";
        bench::print_row(QStringLiteral("key press, %1, 1,000,000 words / 10,000 words").arg(QLatin1StringView(place)),
                         bench::alternate(201, press_in(longest.get()), press_in(shortest.get())), 1.5);
    }
}

} // namespace

/// Named groups of rows only, and a single length, if the command line has them: "bench_long edits end 1000000".
int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("ENCHANT_CONFIG_DIR", home.path().toUtf8());
    QApplication application(argc, argv);
    QStringList groups = QCoreApplication::arguments().mid(1);
    QList<int> lengths{100'000, 1'000'000};
    if (!groups.isEmpty() && groups.last().toInt() > 0)
        lengths = {groups.takeLast().toInt()};
    const auto wants = [&](const char *group) { return groups.isEmpty() || groups.contains(QLatin1StringView(group)); };
    bench::print_header("ours ms", "plain ms");
    if (wants("growth"))
        measure_growth();
    for (const int words : std::as_const(lengths)) {
        const QString size = QStringLiteral("%L1 words").arg(words);
        const QString text = bench::book_text(words);
        if (wants("edits") || wants("end") || wants("scrolling") || wants("sizes") || wants("marking") ||
            wants("table")) {
            const std::unique_ptr<Windows> windows = marked_windows(text);
            if (wants("edits"))
                measure_edits(*windows, size, words >= 1'000'000 ? 0.1 : 0.5);
            if (wants("end"))
                measure_end(*windows, size);
            if (wants("scrolling"))
                measure_scrolling(*windows, size);
            if (wants("sizes"))
                measure_sizes(*windows, size);
            if (wants("marking"))
                measure_marking(*windows, text, size);
            if (wants("table"))
                measure_table(*windows, size);
        }
        if (wants("loading"))
            measure_loading(text, size);
    }
    return 0;
}
