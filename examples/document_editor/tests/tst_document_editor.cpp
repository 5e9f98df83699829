// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "answers.h"

#include "autosave.h"
#include "document_file.h"
#include "file_watch.h"
#include "files.h"
#include "recovery_file.h"
#include "section_page.h"
#include "section_tabs.h"
#include "window.h"

#include "support/desktop.h"
#include "support/http_server.h"

#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;
using namespace document_editor;
using test_support::HttpServer;

namespace {

QString text_of(const Section &section)
{
    QTextDocument document;
    document.setHtml(section.html);
    return document.toPlainText();
}

QStringList titles_of(const Document &document)
{
    QStringList titles;
    for (const Section &section : document.sections)
        titles.append(section.title);
    return titles;
}

} // namespace

/// The program as a person meets it, by keyboard, on an X server of the test's own.
class TstDocumentEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_desktop.start()); }
    void init() { test_support::fail_on_warnings(); }

    /// Closes the window, which asks when something would be lost and only then.
    void cleanup()
    {
        if (!m_window)
            return;
        const bool is_asked = m_window->isWindowModified();
        Answers answers({u"Discard"_s});
        m_window->close();
        QTRY_VERIFY(!m_window);
        QCOMPARE(answers.all_given(), is_asked);
    }

    void a_report_data()
    {
        QTest::addColumn<QString>("scale");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("usual") << u"1"_s << QStringList();
        QTest::newRow("large-right-to-left") << u"2"_s << QStringList(u"-reverse"_s);
    }

    void a_report()
    {
        QFETCH(const QString, scale);
        QFETCH(const QStringList, arguments);
        m_desktop.environment.insert(u"QT_SCALE_FACTOR"_s, scale);
        HttpServer server;
        server.answers["/sources.html"] = HttpServer::status("200 OK", "<p>Sources: <b>none</b></p>");

        std::unique_ptr<QProcess> program = start(arguments);
        QVERIFY(m_desktop.play(u"{Untitled}"_s));
        write_report(server);
        arrange_sections();
        program->kill();
        program->waitForFinished();
        const Document before = recovery().value();

        program = start(arguments);
        QVERIFY(m_desktop.play(u"{Recovery}"_s));
        shot(u"6-recovery"_s);
        m_desktop.dismiss(u"Recovery"_s, u"Return"_s);
        QVERIFY(m_desktop.play(u"{Untitled*}"_s));
        shot(u"7-recovered"_s);
        const QString pdf = m_directory.filePath(u"report.pdf"_s);
        QVERIFY(m_desktop.play(u"<ctrl+shift+e>{Export}%1<Return>"_s.arg(pdf)));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pdf), 20000);
        const auto reader = m_desktop.run(u"pdftotext"_s, {pdf, u"-"_s});
        QVERIFY(reader->waitForFinished());
        const QByteArray printed = reader->readAllStandardOutput().simplified();
        for (const char *part : {"The report It was mispeled at first.", "one", "two", "Sources: none", "A chart and"})
            QVERIFY2(printed.contains(part), printed.constData());
        QFile::remove(pdf);

        const QString path = m_directory.filePath(u"report.html"_s);
        QVERIFY(m_desktop.play(u"<ctrl+s>{Save}%1<Return>{report.html -}"_s.arg(path.chopped(5))));
        shot(u"8-saved"_s);
        const Document saved = from_bytes(read_file(path));
        QCOMPARE(titles_of(saved), titles_of(before));
        for (int i = 0; i < saved.sections.size(); ++i)
            QCOMPARE(saved.sections[i].html, before.sections[i].html); // not a byte changed
        QCOMPARE(text_of(saved.sections[0]), u"The report\nIt was mispeled at first.\none\ntwo"_s);
        QVERIFY(saved.sections[0].html.contains("<ul"_L1));
        QVERIFY(text_of(saved.sections[1]).contains("Sources: none"_L1));
        QVERIFY(saved.sections[2].html.contains("<table"_L1) && saved.sections[2].html.contains("data:image/png"_L1));

        quit(program.get());
        program = start(arguments + QStringList{u"--"_s, path}); // and written anew
        QVERIFY(m_desktop.play(u"{report.html}<x BackSpace ctrl+Next><x BackSpace ctrl+Next><x BackSpace ctrl+s>"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!m_desktop.title().contains(u'*'), 20000);
        quit(program.get());
        const Document again = from_bytes(read_file(path));
        QCOMPARE(titles_of(again), titles_of(saved));
        for (int i = 0; i < saved.sections.size(); ++i)
            QCOMPARE(again.sections[i].html, saved.sections[i].html);
        QFile::remove(path);
    }

    void opens_and_reloads()
    {
        const QString path = two_sections();
        SectionTabs *tabs = show_window(path);
        QCOMPARE(titles_of(tabs->document()), QStringList({u"One"_s, u"Two"_s}));
        QVERIFY(!m_window->isWindowModified());

        QVERIFY(QTest::qWaitForWindowActive(m_window));
        Answers answers({u"Yes"_s});
        write_file(path, to_bytes({{{u"New"_s, {}, u"<p>third</p>"_s}, {u"Two"_s, {}, u"<p>second</p>"_s}}, {}}));
        QTRY_COMPARE(titles_of(tabs->document()), QStringList({u"New"_s, u"Two"_s}));
        QVERIFY(answers.asked().contains("another program"_L1));
        QCOMPARE(tabs->current_page()->editor()->text_edit->toPlainText(), u"third"_s);
    }

    void download_failures()
    {
        HttpServer server;
        server.answers["/none"] = HttpServer::status("404 Not Found");
        SectionTabs *tabs = show_window();
        const auto actions = m_window->findChildren<QAction *>();
        const auto is_download = [](const QAction *action) { return action->text().startsWith("&Download"_L1); };
        QAction *download = *std::find_if(actions.begin(), actions.end(), is_download);
        const auto before = titles_of(tabs->document());
        const std::pair<QString, QString> failures[] = {{server.url("/none"), u"404"_s},
                                                        {u"http://127.0.0.1:1/a"_s, u"refused"_s}};
        for (const auto &[address, reason] : failures) {
            Answers answers({address, u"OK"_s});
            download->trigger();
            QVERIFY2(answers.all_given() && answers.asked().contains(reason), qPrintable(answers.asked()));
            QVERIFY(titles_of(tabs->document()) == before && !m_window->isWindowModified());
        }
    }

    void closes_before_the_next_is_loaded()
    {
        SectionTabs *tabs = show_window(two_sections());
        const auto buttons = m_window->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->text() == "Stop"_L1)
                button->click();
        }
        const Answers answers({u"Yes"_s});
        tabs->closeTab(0);
        QCOMPARE(titles_of(tabs->document()), QStringList(u"Two"_s));
        QCOMPARE(tabs->current_page()->editor()->text_edit->toPlainText(), u"second"_s);
    }

    /// Given up while the sections are being asked for their content.
    void discarded_document_stays_away()
    {
        SectionTabs tabs;
        tabs.set_document({});
        auto file = std::make_unique<RecoveryFile>();
        const QString copy = file->path();
        Autosave autosave(&tabs, std::move(file), nullptr);
        for (int i = 0; i < 3; ++i)
            tabs.add_section({u"Given up"_s, {}, u"<p>not wanted</p>"_s});
        const QList<SectionPage *> pages = tabs.pages().mid(1);
        QTimer looking;
        connect(&looking, &QTimer::timeout, &autosave, [&] {
            if (!pages.first()->has_changed_since_snapshot()) {
                autosave.stop();
                looking.stop();
            }
        });
        looking.start(0);
        QTRY_VERIFY(!looking.isActive());
        QVERIFY(pages.last()->has_changed_since_snapshot()); // it was in the middle
        QTest::qWait(500);
        QVERIFY(!QFile::exists(copy));
    }

    void recovery_keeps_closed_sections()
    {
        auto file = std::make_unique<RecoveryFile>();
        const QString copy = file->path();
        SectionTabs *tabs = show_window(two_sections(), std::move(file));
        tabs->current_page()->editor()->text_edit->insertPlainText(u"unsaved "_s);
        const Answers answers({u"Yes"_s});
        tabs->closeTab(0);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(copy), 10000);
        delete m_window; // as in a crash

        auto found = RecoveryFile::left_behind();
        QCOMPARE(found.size(), 1u);
        tabs = show_window({}, std::move(found.front()));
        m_window->show_document(from_bytes(read_file(copy)));
        QCOMPARE(titles_of(tabs->document()), QStringList(u"Two"_s));
        QTest::qWait(300);
        QVERIFY(QFile::exists(copy) && m_window->isWindowModified()); // until it is saved
        tabs->restore_section();
        QCOMPARE(titles_of(tabs->document()), QStringList({u"One"_s, u"Two"_s}));
        QCOMPARE(tabs->current_page()->editor()->text_edit->toPlainText(), u"unsaved first"_s);
    }

    void recovery_knows_of_a_newer_file()
    {
        const QString path = two_sections();
        const QString stamp = FileWatch::stamp_of(path);
        QFile later(path);
        QVERIFY(later.open(QIODevice::ReadWrite));
        QVERIFY(later.setFileTime(QDateTime::currentDateTime().addSecs(-10), QFileDevice::FileModificationTime));
        later.close();

        Document document = {{{u"Mine"_s, {}, u"<p>older</p>"_s}}, path, stamp};
        for (int crash = 0; crash < 2; ++crash) { // the second copy is newer than the file
            delete m_window;
            auto file = std::make_unique<RecoveryFile>();
            const QString copy = file->path();
            m_window = new Window(std::move(file)); // not shown: it would ask about the newer file
            m_window->show_document(document);
            m_window->findChild<SectionTabs *>()->current_page()->editor()->text_edit->insertPlainText(u"x"_s);
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(copy), 10000);
            document = from_bytes(read_file(copy));
        }
        Answers answers({u"Cancel"_s, u"Yes"_s});
        QVERIFY(!m_window->save());
        QVERIFY(answers.asked().contains("another program"_L1));
        QCOMPARE(titles_of(from_bytes(read_file(path))), QStringList({u"One"_s, u"Two"_s}));
        QVERIFY(m_window->save());
        QCOMPARE(titles_of(from_bytes(read_file(path))), QStringList(u"Mine"_s));
        QVERIFY(answers.all_given());
        QVERIFY(m_window->save()); // asks nothing
    }

    void export_spares_the_document()
    {
        const QString path = two_sections();
        const QByteArray before = read_file(path);
        show_window(path);
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        Answers answers({path, u"Yes"_s, u"OK"_s});
        QTest::keyClick(m_window, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(answers.all_given());
        QVERIFY(answers.asked().contains("the document itself"_L1));
        QCOMPARE(read_file(path), before);
    }

    void documents_have_their_suffix()
    {
        show_window(two_sections());
        const QString path = m_directory.filePath(u"v1.2"_s);
        for (const QString &answer : {u"Yes"_s, u"Cancel"_s}) {
            Answers answers({path, answer});
            QVERIFY(m_window->save_as() != answers.all_given()); // the second one asks
        }
        QVERIFY(!QFile::exists(path));
        QCOMPARE(from_bytes(read_file(path + ".html"_L1)).sections.size(), 2);
    }

    /// Of what was typed, never more than the last five seconds are lost, and what is there can be read.
    void kills()
    {
        const int kills = qEnvironmentVariable("DOCUMENT_EDITOR_KILLS", u"4"_s).toInt();
        QList<std::pair<qint64, QString>> typed; // when, word
        for (int kill = 0, words = 0; kill < kills; ++kill) {
            const bool has_copy = recovery().has_value();
            const auto program = start();
            QVERIFY(m_desktop.wait_for(has_copy ? u"Recovery"_s : u"Untitled"_s));
            if (has_copy) {
                m_desktop.dismiss(u"Recovery"_s, u"Return"_s);
                QVERIFY(m_desktop.wait_for(u"Untitled*"_s));
            }
            QTest::qWait(500);
            m_desktop.key(u"ctrl+End"_s);

            typed.clear();
            QElapsedTimer clock;
            clock.start();
            const qint64 end = 1000 + QRandomGenerator::global()->bounded(9000);
            while (clock.elapsed() < end) {
                const QString word = u"word%1 "_s.arg(++words);
                m_desktop.tool({u"type"_s, u"--delay"_s, u"5"_s, word});
                typed.append({clock.elapsed(), word});
            }
            const qint64 killed = clock.elapsed();
            program->kill();
            program->waitForFinished();

            const std::optional<Document> copy = recovery();
            const QString text = copy ? text_of(copy->sections.constFirst()) : QString();
            for (const auto &[time, word] : std::as_const(typed)) {
                if (time < killed - 5000)
                    QVERIFY2(text.contains(word.trimmed()),
                             qPrintable(u"%1 of %2 ms: %3"_s.arg(time).arg(killed).arg(word)));
            }
        }
        QDir(recovery_directory()).removeRecursively();
    }

    void keys_are_unambiguous()
    {
        show_window();
        QStringList shortcuts;
        const auto actions = m_window->findChildren<QAction *>(Qt::FindDirectChildrenOnly);
        for (const QAction *action : actions)
            shortcuts += QKeySequence::listToString(action->shortcuts()).split(u"; "_s, Qt::SkipEmptyParts);
        const auto menus = m_window->menuBar()->findChildren<QMenu *>();
        for (const QMenu *menu : menus) {
            QStringList letters;
            const auto items = menu->actions();
            for (const QAction *action : items) {
                if (const QKeySequence letter = QKeySequence::mnemonic(action->text()); !letter.isEmpty())
                    letters.append(letter.toString());
                if (action->parent() != m_window)
                    shortcuts += QKeySequence::listToString(action->shortcuts()).split(u"; "_s, Qt::SkipEmptyParts);
            }
            QVERIFY2(letters.removeDuplicates() == 0, qPrintable(menu->title() + letters.join(u' ')));
        }
        QVERIFY(shortcuts.size() > 30);
        QVERIFY2(shortcuts.removeDuplicates() == 0, qPrintable(shortcuts.join(u' ')));
    }

    void full_disk()
    {
        SectionTabs *tabs = show_window();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        const auto told = [&] {
            const auto labels = m_window->statusBar()->findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                return label->isVisible() && label->text().contains("No recovery copy can be written: "_L1);
            });
        };
        {
            const FullDisk disk(0);
            QTest::keyClicks(m_window->focusWidget(), u"Nothing is lost"_s);
            const bool was_told = QTest::qWaitFor(told, 10000);
            Answers answers({m_directory.filePath(u"full.html"_s), u"OK"_s});
            QVERIFY(!m_window->save() && answers.asked().contains("not saved"_L1));
            QVERIFY(was_told);
        }
        QCOMPARE(tabs->current_page()->editor()->text_edit->toPlainText(), u"Nothing is lost"_s);
        QVERIFY(m_window->isWindowModified());
        QTRY_VERIFY_WITH_TIMEOUT(!told(), 10000); // there is room again
    }

private:
    QString recovery_directory() const { return m_home.path() + "/data/my_classes/document_editor/recovery"_L1; }

    std::optional<Document> recovery() const
    {
        const QDir directory(recovery_directory());
        const QStringList names = directory.entryList({u"*.html"_s}, QDir::Files);
        if (names.isEmpty())
            return {};
        return from_bytes(read_file(directory.filePath(names.constFirst()))); // throws where it is broken
    }

    QStringList recovered_titles() const { return titles_of(recovery().value_or(Document())); }

    std::unique_ptr<QProcess> start(const QStringList &arguments = {}) const
    {
        return m_desktop.run(QStringLiteral(DOCUMENT_EDITOR), arguments);
    }

    QString two_sections() const
    {
        const QString path = m_directory.filePath(u"two.html"_s);
        write_file(path, to_bytes({{{u"One"_s, {}, u"<p>first</p>"_s}, {u"Two"_s, {}, u"<p>second</p>"_s}}, {}}));
        return path;
    }

    SectionTabs *show_window(const QString &path = {}, std::unique_ptr<RecoveryFile> copy = nullptr)
    {
        m_window = copy ? new Window(std::move(copy)) : new Window;
        m_window->show();
        if (!path.isEmpty())
            m_window->open(path);
        return m_window->findChild<SectionTabs *>();
    }

    /// Three sections with a list, a table, a picture and a downloaded text.
    void write_report(const HttpServer &server)
    {
        QImage picture(300, 120, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        const QString chart = m_directory.filePath(u"chart.png"_s);
        QVERIFY(picture.save(chart));

        m_desktop.play(
            u"<ctrl+alt+1>The report<Return ctrl+alt+0>It was mispeled at first.<alt+o l d>one<Return>two"_s);
        shot(u"1-list"_s);
        QVERIFY(m_desktop.play(
            u"<ctrl+t F2>Results<Return>A chart and a table:<Return alt+i p>{Image}%1<Return>"_s.arg(chart)));
        shot(u"2-picture-size"_s);
        QVERIFY(m_desktop.play(u"<Return>{Untitled}<Return alt+i t>{Table}2<Tab>3<Return>"_s));
        shot(u"3-table"_s);
        QVERIFY(m_desktop.play(u"<alt+f d>{Download}%1<Return>"_s.arg(server.url("/sources.html"))));
        QTRY_COMPARE_WITH_TIMEOUT(recovered_titles(), QStringList({u"Section"_s, u"Results"_s, u"sources"_s}), 20000);
        shot(u"4-download"_s);
    }

    void arrange_sections()
    {
        QVERIFY(m_desktop.play(u"<ctrl+shift+Prior ctrl+w>{Deletion}"_s)); // once it is before the results
        shot(u"5-close"_s);
        m_desktop.key(u"alt+y"_s);
        QTRY_COMPARE_WITH_TIMEOUT(recovered_titles(), QStringList({u"Section"_s, u"Results"_s}), 20000);
        m_desktop.key(u"ctrl+shift+t"_s);
        QTRY_COMPARE_WITH_TIMEOUT(recovered_titles(), QStringList({u"Section"_s, u"sources"_s, u"Results"_s}), 20000);
    }

    /// Asks nothing, leaves nothing.
    void quit(QProcess *program)
    {
        m_desktop.key(u"ctrl+q"_s);
        QVERIFY(QTest::qWaitFor([&] { return program->state() == QProcess::NotRunning; }, 10000));
        QCOMPARE(program->exitCode(), 0);
        QCOMPARE(program->readAllStandardError(), QByteArray());
        QVERIFY(!recovery());
    }

    void shot(const QString &name) const { m_desktop.shot(QString::fromLatin1(QTest::currentDataTag()) + u'-' + name); }

    const test_support::PrivateHome m_home;
    Desktop m_desktop;
    QTemporaryDir m_directory;
    QPointer<Window> m_window;
};

MY_CLASSES_TEST_MAIN(TstDocumentEditor)

#include "tst_document_editor.moc"
