// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// A document of ten sections in the document editor against the same HTML in plain QTextEdits, and typing in it, with
// its recovery file, against the editor alone.

#include "book_text.h"
#include "measure.h"

#include "document_file.h"
#include "files.h"
#include "section_page.h"
#include "section_tabs.h"
#include "window.h"

#include <my_classes/my_classes.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

using namespace document_editor;

constexpr int k_sections = 10;
constexpr int k_words = 1'000'000;

Document book()
{
    Document document;
    my_classes::CustomTextEditor editor({});
    for (int i = 0; i < k_sections; ++i) {
        editor.set_text_content(bench::book_text(k_words / k_sections, unsigned(i + 1)));
        document.sections.append({QStringLiteral("Section %1").arg(i + 1), {}, editor.get_html_content()});
    }
    return document;
}

/// Tells when the text of a page has been painted.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(const SectionTabs *tabs)
        : m_tabs(tabs)
    {
        m_clock.start();
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        SectionPage *page = m_tabs->current_page();
        const bool is_text = event->type() == QEvent::Paint && page && page->is_loaded() && !page->is_blank() &&
                             watched == page->editor()->text_edit->viewport();
        if (m_is_painting) // by now it has been
            m_time = double(m_clock.nsecsElapsed()) / 1e6;
        m_is_painting = is_text && m_time == 0;
        return false;
    }

    double milliseconds() const { return m_time; }

private:
    const SectionTabs *m_tabs;
    QElapsedTimer m_clock;
    bool m_is_painting = false;
    double m_time = 0;
};

struct Opening
{
    double first = 0; // milliseconds, until its text is painted
    double all = 0;
    double longest_turn = 0;
};

Opening open_in_document_editor(const QString &path)
{
    Opening times;
    QPointer<Window> window = new Window;
    window->show();
    (void)QTest::qWaitForWindowActive(window);
    auto *tabs = window->findChild<SectionTabs *>();
    auto first = std::make_unique<FirstPaint>(tabs);
    times.all = bench::milliseconds([&] {
        window->open(path);
        const auto is_loaded = [&] {
            const QList<SectionPage *> pages = tabs->pages();
            return std::all_of(pages.begin(), pages.end(), std::mem_fn(&SectionPage::is_loaded));
        };
        while (!is_loaded()) {
            const double turn = bench::milliseconds([] { QCoreApplication::processEvents(); });
            times.longest_turn = std::max(times.longest_turn, turn);
        }
    });
    times.first = first->milliseconds();
    first.reset();
    delete window;
    return times;
}

double open_in_plain_text_areas(const Document &document)
{
    QTabWidget tabs;
    for (int i = 0; i < k_sections; ++i)
        tabs.addTab(new QTextEdit, QString::number(i));
    tabs.resize(1000, 760);
    tabs.show();
    (void)QTest::qWaitForWindowActive(&tabs);
    return bench::milliseconds([&] {
        for (int i = 0; i < k_sections; ++i) {
            static_cast<QTextEdit *>(tabs.widget(i))->setHtml(document.sections.at(i).html);
            QCoreApplication::processEvents();
        }
    });
}

void measure_opening(const Document &document, const QString &path)
{
    std::vector<double> first, all, turns, plain;
    for (int i = 0; i < 7; ++i) {
        const Opening times = open_in_document_editor(path);
        first.push_back(times.first);
        all.push_back(times.all);
        turns.push_back(times.longest_turn);
        plain.push_back(open_in_plain_text_areas(document));
    }
    const double reference = bench::median(plain);
    bench::print_row(QStringLiteral("opening, all sections, 1,000,000 words"), {bench::median(all), reference}, 1.2);
    bench::print_row(QStringLiteral("opening until the first section can be read"), {bench::median(first), reference},
                     0.25);
    bench::print_row(QStringLiteral("longest turn of the event loop / loading one section"),
                     {bench::median(turns), reference / k_sections}, 2);
}

void press(my_classes::CustomTextEditor *editor, char key)
{
    QTest::keyClick(editor->text_edit, key);
    QCoreApplication::processEvents();
}

/// For long enough that recovery files are written meanwhile, in lines as long as on the page.
void measure_typing(const Document &document, const QString &path)
{
    QPointer<Window> window = new Window;
    window->show();
    window->open(path);
    SectionPage *page = window->findChild<SectionTabs *>()->current_page();
    my_classes::CustomTextEditor alone({});
    alone.resize(window->size());
    alone.set_marking_while_writing(true);
    alone.set_html_content(document.sections.constFirst().html);
    alone.show();
    QTest::qWait(3000); // loads the others
    alone.text_edit->setFixedSize(page->editor()->text_edit->size());
    QTest::qWait(2000);
    const QByteArray keys = "some words and more of them ";
    std::vector<double> ours, theirs;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 20'000) {
        const char key = keys.at(qsizetype(theirs.size()) % keys.size());
        const auto press_ours = [&] { press(page->editor(), key); };
        const auto press_theirs = [&] { press(&alone, key); };
        const bool first = theirs.size() % 2; // the second one finds the processor's caches warm
        if (first)
            ours.push_back(bench::milliseconds(press_ours));
        theirs.push_back(bench::milliseconds(press_theirs));
        if (!first)
            ours.push_back(bench::milliseconds(press_ours));
        QTest::qWait(20);
    }
    const auto slowest = [](std::vector<double> times) { return *std::max_element(times.begin(), times.end()); };
    bench::print_row(QStringLiteral("key press while the recovery file is written / in the editor alone"),
                     {bench::median(ours), bench::median(theirs)}, 1.1);
    bench::print_row(QStringLiteral("the slowest of these keys"), {slowest(ours), slowest(theirs)}, 2);
    delete window;
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "ENCHANT_CONFIG_DIR"})
        qputenv(name, home.path().toUtf8());
    QApplication application(argc, argv);
    bench::print_header("ours ms", "plain ms");
    const QString path = home.filePath(QStringLiteral("book.html"));
    const Document document = book();
    write_file(path, to_bytes(document));
    measure_opening(document, path);
    measure_typing(document, path);
    return 0;
}
