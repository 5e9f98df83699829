// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

/// The program as a person meets it: a process with a window on an X server, here one of the test's own.
class TstProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { test_support::fail_on_warnings(); }
    void cleanupTestCase();

    void one_window_until_it_is_closed();
    void takes_what_is_typed_at_once();
    void says_which_dictionary_is_missing();

private:
    void start(QProcess *program, const QStringList &arguments = {}) const;
    QString output_of(const QString &program, const QStringList &arguments) const;
    QString x_tool(const QString &command) const { return output_of(u"xdotool"_s, command.split(u' ')); }
    QString selected_text() const { return output_of(u"xclip"_s, {u"-o"_s}); }
    QString visible_windows() const { return x_tool(u"search --onlyvisible --name ."_s); }

    QString m_program = qEnvironmentVariable("MY_CLASSES_PROGRAM", QStringLiteral(MY_CLASSES_PROGRAM));
    QProcess m_x_server;
    QProcess m_window_manager;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

void TstProgram::initTestCase()
{
    m_x_server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s, u"-noreset"_s});
    QTRY_VERIFY_WITH_TIMEOUT(m_x_server.canReadLine() || m_x_server.state() == QProcess::NotRunning, 30000);
    const QString display = QString::fromLatin1(m_x_server.readLine()).trimmed();
    QVERIFY2(!display.isEmpty(), m_x_server.readAllStandardError().constData());

    // As bare as it gets: no session, no locale.
    for (const char *variable : {"QT_QPA_PLATFORM", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY",
                                 "XAUTHORITY", "LANG", "LC_ALL"})
        m_environment.remove(QString::fromLatin1(variable));
    m_environment.insert(u"DISPLAY"_s, u':' + display);
}

void TstProgram::cleanupTestCase()
{
    m_window_manager.terminate();
    m_window_manager.waitForFinished();
    m_x_server.terminate();
    m_x_server.waitForFinished();
}

/// Comes back when it has a window, or has ended.
void TstProgram::start(QProcess *program, const QStringList &arguments) const
{
    program->setProcessEnvironment(m_environment);
    program->start(m_program, arguments);
    QTRY_VERIFY_WITH_TIMEOUT(!visible_windows().isEmpty() || program->state() == QProcess::NotRunning, 60000);
}

QString TstProgram::output_of(const QString &program, const QStringList &arguments) const
{
    QProcess tool;
    tool.setProcessEnvironment(m_environment);
    tool.start(program, arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

void TstProgram::one_window_until_it_is_closed()
{
    QProcess program;
    start(&program, {u"-geometry"_s, u"300x200+5+5"_s, u"-style"_s, u"none"_s}); // nothing of this is for Qt
    QVERIFY2(program.state() == QProcess::Running, program.readAllStandardError().constData());

    const QString window = visible_windows();
    QCOMPARE(window.count(u'\n'), 0);
    QCOMPARE(x_tool(u"getwindowname "_s + window), u"MainWindow with CustomTextEditor"_s);
    QTRY_COMPARE(x_tool(u"getwindowgeometry --shell "_s + window).section(u'\n', 1, 4),
                 u"X=100\nY=100\nWIDTH=800\nHEIGHT=600"_s);

    m_window_manager.setProcessEnvironment(m_environment);
    m_window_manager.start(u"openbox"_s, {u"--sm-disable"_s});
    QVERIFY(m_window_manager.waitForStarted());
    QTRY_COMPARE_WITH_TIMEOUT(x_tool(u"windowactivate %1 getactivewindow"_s.arg(window)), window, 30000);
    // It may show a window as active before it listens to the keyboard.
    QTRY_VERIFY_WITH_TIMEOUT(
        (x_tool(u"key alt+F4"_s), program.waitForFinished(1000), program.state() == QProcess::NotRunning), 30000);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.exitCode(), 0);
}

/// Nothing is clicked or pressed before. What is selected is heard of from the X server.
void TstProgram::takes_what_is_typed_at_once()
{
    QProcess program;
    start(&program);
    const QString window = visible_windows();
    QTRY_COMPARE_WITH_TIMEOUT(x_tool(u"getactivewindow"_s), window, 30000);
    // It may show a window as active before it listens to the keyboard.
    x_tool(u"key ctrl+v"_s); // of the clipboard of an X server on which nothing was ever copied
    QTRY_VERIFY_WITH_TIMEOUT((x_tool(u"type hello"_s), x_tool(u"key ctrl+a"_s), selected_text().endsWith(u"hello"_s)),
                             30000);
    QVERIFY2(selected_text() == u"hello"_s, qPrintable(selected_text()));
    x_tool(u"key alt+F4"_s);
    QVERIFY(program.waitForFinished());
}

void TstProgram::says_which_dictionary_is_missing()
{
    // An Enchant that finds none of its engines: a copy that looks for them in another directory.
    QTemporaryDir directory;
    QFile enchant(QStringLiteral(MY_CLASSES_ENCHANT_LIBRARY));
    QVERIFY(enchant.open(QIODevice::ReadOnly));
    QByteArray code = enchant.readAll();
    const QByteArray engines("/enchant-2\0", 11);
    QVERIFY(code.contains(engines));
    code.replace(engines, QByteArray("/enchant-_\0", 11));
    QFile blind_enchant(directory.filePath(u"libenchant-2.so.2"_s));
    QVERIFY(blind_enchant.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(blind_enchant.write(code), code.size());

    m_environment.insert(u"LD_LIBRARY_PATH"_s, directory.path());
    QProcess program;
    start(&program);
    QCOMPARE(program.state(), QProcess::NotRunning);
    QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 1);
    const QByteArray complaint = program.readAllStandardError();
    QCOMPARE(complaint.count('\n'), 1);
    QVERIFY2(complaint.contains("\"en\"") && complaint.contains("hunspell-en-us"), complaint.constData());
}

MY_CLASSES_TEST_MAIN(TstProgram)

#include "tst_program.moc"
