// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/my_classes.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextList>
#include <QtGui/QTextTable>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

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

/// What a file holds; "no file" where there is none.
inline QByteArray content_of(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

inline void show_active(QWidget &window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("The window does not become active");
}

/// Selects from `anchor` to `position`; without one, puts the cursor there.
inline void select(QTextEdit *area, int anchor, int position = -1)
{
    QTextCursor cursor = area->textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position < 0 ? anchor : position, QTextCursor::KeepAnchor);
    area->setTextCursor(cursor);
}

/// The first paragraph, with its bold parts in brackets.
inline QString bold_in_brackets(const QTextDocument *document)
{
    QString text;
    const QTextBlock block = document->firstBlock();
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const bool is_bold = part.fragment().charFormat().fontWeight() == QFont::Bold;
        text += (is_bold ? QStringLiteral("[%1]") : QStringLiteral("%1")).arg(part.fragment().text());
    }
    return text.remove(QStringLiteral("]["));
}

/// An embedded red picture.
inline QString picture_html(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer png;
    image.save(&png, "PNG");
    return QStringLiteral("<img src='data:image/png;base64,%1'>").arg(QString::fromLatin1(png.data().toBase64()));
}

/// The button or action with that text.
template<typename Item>
Item *with_text(const QObject &parent, const QString &text)
{
    for (Item *item : parent.findChildren<Item *>()) {
        if (item->text() == text)
            return item;
    }
    qFatal("Nothing says \"%s\"", qPrintable(text));
}

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
