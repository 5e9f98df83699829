// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "test_support.h"

#include <memory>

/// An X server of the test's own with a window manager, and a person's hands and eyes.
class Desktop
{
public:
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment(); ///< Of what is run.

    bool start() { return start_server() && start_manager(); }

    bool start_server()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-noreset")});
        if (!QTest::qWaitFor([this] { return m_server.canReadLine(); }, 30000))
            return false;
        for (const char *variable : {"QT_QPA_PLATFORM", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY", "XAUTHORITY"})
            environment.remove(QString::fromLatin1(variable));
        environment.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(m_server.readLine()).trimmed());
        environment.insert(QStringLiteral("LANG"), QStringLiteral("en_US.UTF-8"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
        return true;
    }

    bool start_manager()
    {
        m_manager.setProcessEnvironment(environment);
        m_manager.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
        // It is there when it tells of desktops.
        return QTest::qWaitFor([this] { return !tool({QStringLiteral("get_num_desktops")}).isEmpty(); }, 30000);
    }

    ~Desktop()
    {
        for (QProcess *process : {&m_manager, &m_server}) {
            process->terminate();
            process->waitForFinished();
        }
    }

    std::unique_ptr<QProcess> run(const QString &program, const QStringList &arguments = {}) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(program, arguments);
        return process;
    }

    QString tool(const QStringList &arguments) const
    {
        const auto xdotool = run(QStringLiteral("xdotool"), arguments);
        while (xdotool->state() != QProcess::NotRunning && !xdotool->waitForFinished(10)) // servers answer meanwhile
            QCoreApplication::processEvents();
        return QString::fromUtf8(xdotool->readAllStandardOutput()).trimmed();
    }

    QString title() const { return tool({QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")}); }
    bool wait_for(const QString &part_of_title) const
    {
        if (QTest::qWaitFor([&] { return title().contains(part_of_title); }, 60000))
            return true;
        shot(QStringLiteral("failed"));
        qInfo() << "waiting for" << part_of_title << "there is" << title();
        return false;
    }
    void key(const QString &keys) const
    {
        tool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("40")} + keys.split(u' '));
        QTest::qWait(150);
    }
    void type(const QString &text) const
    {
        tool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("8"), QStringLiteral("--"), text});
        QTest::qWait(150);
    }
    /// Types, presses <keys>, and waits for windows by {part of the title}; false when one does not come.
    bool play(const QString &script) const
    {
        static const QRegularExpression part(QStringLiteral("<([^>]+)>|\\{([^}]+)\\}|([^<{]+)"));
        for (auto parts = part.globalMatch(script); parts.hasNext();) {
            const QRegularExpressionMatch next = parts.next();
            if (next.hasCaptured(2) && !wait_for(next.captured(2)))
                return false;
            if (next.hasCaptured(2))
                QTest::qWait(500); // it may not listen yet
            else
                next.hasCaptured(1) ? key(next.captured(1)) : type(next.captured(3));
        }
        return true;
    }
    /// A window may be there a moment before it takes keys: they are pressed again until it has gone.
    void dismiss(const QString &part_of_title, const QString &keys) const
    {
        const auto has_gone = [&] { return !title().contains(part_of_title); };
        for (int i = 0; i < 10 && !has_gone(); ++i) {
            key(keys);
            if (QTest::qWaitFor(has_gone, 2000))
                return;
        }
    }
    /// Keeps a picture of the screen, once it has settled, in the directory of build artefacts.
    void shot(const QString &name) const
    {
        QTest::qWait(500);
        QDir().mkpath(QStringLiteral(MY_CLASSES_PICTURES));
        run(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"),
                                       QStringLiteral(MY_CLASSES_PICTURES "/") + name + QStringLiteral(".png")})
            ->waitForFinished();
    }

private:
    QTemporaryDir m_runtime;
    QProcess m_server;
    QProcess m_manager;
};
