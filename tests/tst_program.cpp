// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/desktop.h"

using namespace Qt::StringLiterals;

/// The program as a person meets it: a process with a window on an X server, here one of the test's own.
class TstProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_desktop.start_server());
        for (const char *variable : {"XDG_RUNTIME_DIR", "LANG", "LC_ALL"}) // as bare as it gets: no session, no locale
            m_desktop.environment.remove(QString::fromLatin1(variable));
    }

    void init() { test_support::fail_on_warnings(); }

    void one_window_until_it_is_closed()
    {
        // Nothing of this is for Qt.
        const auto program = start({u"-geometry"_s, u"300x200+5+5"_s, u"-style"_s, u"none"_s});
        QVERIFY2(program->state() == QProcess::Running, program->readAllStandardError().constData());
        const QString window = visible_windows();
        QCOMPARE(window.count(u'\n'), 0);
        QCOMPARE(tool(u"getwindowname "_s + window), u"MainWindow with CustomTextEditor"_s);
        QTRY_COMPARE(tool(u"getwindowgeometry --shell "_s + window).section(u'\n', 1, 4),
                     u"X=100\nY=100\nWIDTH=800\nHEIGHT=600"_s);

        QVERIFY(m_desktop.start_manager());
        QTRY_COMPARE_WITH_TIMEOUT(tool(u"windowactivate %1 getactivewindow"_s.arg(window)), window, 30000);
        // It may show a window as active before it listens to the keyboard.
        QTRY_VERIFY_WITH_TIMEOUT(
            (tool(u"key alt+F4"_s), program->waitForFinished(1000), program->state() == QProcess::NotRunning), 30000);
        QCOMPARE(program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(program->readAllStandardError(), QByteArray());
        QCOMPARE(program->exitCode(), 0);
    }

    /// Nothing is clicked or pressed before. What is selected is heard of from the X server.
    void takes_what_is_typed_at_once()
    {
        const auto program = start();
        QTRY_COMPARE_WITH_TIMEOUT(tool(u"getactivewindow"_s), visible_windows(), 30000);
        // It may show a window as active before it listens to the keyboard.
        tool(u"key ctrl+v"_s); // of the clipboard of an X server on which nothing was ever copied
        QTRY_VERIFY_WITH_TIMEOUT((tool(u"type hello"_s), tool(u"key ctrl+a"_s), selected_text().endsWith(u"hello"_s)),
                                 30000);
        QCOMPARE(selected_text(), u"hello"_s);
        tool(u"key alt+F4"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program->state(), QProcess::NotRunning, 30000);
    }

    void says_which_dictionary_is_missing()
    {
        // An Enchant that finds none of its engines: a copy that looks for them in another directory.
        QTemporaryDir directory;
        QByteArray code = test_support::content_of(QStringLiteral(MY_CLASSES_ENCHANT_LIBRARY));
        const QByteArray engines("/enchant-2\0", 11);
        QVERIFY(code.contains(engines));
        code.replace(engines, QByteArray("/enchant-_\0", 11));
        QFile blind_enchant(directory.filePath(u"libenchant-2.so.2"_s));
        QVERIFY(blind_enchant.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        QCOMPARE(blind_enchant.write(code), code.size());

        m_desktop.environment.insert(u"LD_LIBRARY_PATH"_s, directory.path());
        const auto program = start();
        QCOMPARE(program->state(), QProcess::NotRunning);
        QVERIFY(program->exitStatus() == QProcess::NormalExit && program->exitCode() == 1);
        const QByteArray complaint = program->readAllStandardError();
        QCOMPARE(complaint.count('\n'), 1);
        QVERIFY2(complaint.contains("\"en\"") && complaint.contains("hunspell-en-us"), complaint.constData());
    }

private:
    /// Comes back when it has a window, or has ended.
    std::unique_ptr<QProcess> start(const QStringList &arguments = {}) const
    {
        auto program =
            m_desktop.run(qEnvironmentVariable("MY_CLASSES_PROGRAM", QStringLiteral(MY_CLASSES_PROGRAM)), arguments);
        (void)QTest::qWaitFor([&] { return program->state() == QProcess::NotRunning || !visible_windows().isEmpty(); },
                              60000);
        return program;
    }

    QString tool(const QString &command) const { return m_desktop.tool(command.split(u' ')); }
    QString visible_windows() const { return tool(u"search --onlyvisible --name ."_s); }
    QString selected_text() const
    {
        const auto clipboard = m_desktop.run(u"xclip"_s, {u"-o"_s});
        clipboard->waitForFinished();
        return QString::fromUtf8(clipboard->readAllStandardOutput());
    }

    Desktop m_desktop;
};

MY_CLASSES_TEST_MAIN(TstProgram)

#include "tst_program.moc"
