// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <cstdio>
#include <functional>
#include <unistd.h>

namespace test_support {

/// Fails the test at any Qt warning; the exception is a remark of the offscreen platform. Call it in init().
inline void fail_on_warnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

/// Points everything that a person owns (home, configuration, word lists) into a folder of the test's own.
class PrivateHome
{
public:
    PrivateHome()
    {
        set("HOME", QString());
        set("XDG_CONFIG_HOME", QStringLiteral("config"));
        set("XDG_CACHE_HOME", QStringLiteral("cache"));
        set("XDG_DATA_HOME", QStringLiteral("data"));
        set("ENCHANT_CONFIG_DIR", QStringLiteral("enchant"));
    }

    QString path() const { return m_directory.path(); }

private:
    void set(const char *name, const QString &subdirectory)
    {
        const QString path = m_directory.filePath(subdirectory);
        QDir().mkpath(path);
        qputenv(name, QFile::encodeName(path));
    }

    QTemporaryDir m_directory;
};

/// Gives the next modal dialog to `answer`, as soon as there is one.
inline void answer_next_dialog(const std::function<void(QDialog *)> &answer)
{
    QTimer::singleShot(5, qApp, [answer] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()); dialog && dialog->isVisible())
            answer(dialog);
        else
            answer_next_dialog(answer);
    });
}

/// What `action` writes to standard output.
inline QString standard_output_of(const std::function<void()> &action)
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    std::fflush(stdout);
    const int saved = dup(STDOUT_FILENO);
    dup2(file.handle(), STDOUT_FILENO);
    action();
    std::fflush(stdout);
    dup2(saved, STDOUT_FILENO);
    close(saved);
    file.seek(0);
    return QString::fromUtf8(file.readAll());
}

} // namespace test_support

/// The main function of a test: a private home, a widget application, one test object.
#define MY_CLASSES_TEST_MAIN(TestClass)         \
    int main(int argc, char *argv[])            \
    {                                           \
        const test_support::PrivateHome home;   \
        QApplication application(argc, argv);   \
        TestClass test;                         \
        return QTest::qExec(&test, argc, argv); \
    }
