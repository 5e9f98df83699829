// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// Find and replace against the plain way of doing it with Qt, in one run: prints the ratios and fails if one is over
// its limit. Diagnostic lines go to standard output, results to standard error.

#include "book_text.h"

#include <my_classes/search_dialog.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <cstdio>
#include <functional>

using my_classes::SearchDialog;
using namespace Qt::StringLiterals;

namespace {

constexpr int k_book_words = 100'000;
constexpr int k_long_book_words = 1'000'000;
int failures = 0;

/// Answers every message box at once.
class BoxAnswers : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *box = qobject_cast<QMessageBox *>(watched); box && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(box, &QDialog::accept, Qt::QueuedConnection);
        return false;
    }
};

/// The book with `count` words, evenly spread, replaced by "needle".
QString text_with(int count)
{
    QString text = bench::book_text(k_book_words);
    QString result;
    int word = 0;
    for (const QString &line : text.split(u'\n')) {
        QStringList words = line.split(u' ');
        for (QString &each : words) {
            if (word++ % (k_book_words / count) == 0)
                each = u"needle"_s;
        }
        result += (result.isEmpty() ? QString() : u"\n"_s) + words.join(u' ');
    }
    return result;
}

double milliseconds(const std::function<void()> &action)
{
    QElapsedTimer clock;
    clock.start();
    action();
    return double(clock.nsecsElapsed()) / 1e6;
}

/// The fastest of several runs, each on a fresh text area that has been shown.
double fastest(const QString &text, const std::function<double(QTextEdit &)> &run, int runs = 3)
{
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        QTextEdit area;
        area.resize(800, 600);
        area.setPlainText(text);
        area.show();
        for (int round = 0; round < 20; ++round)
            QApplication::processEvents(); // layout goes on in the background for a while
        best = std::min(best, run(area));
    }
    return best;
}

void report(const char *what, double measured, double reference, double limit)
{
    const double ratio = measured / reference;
    failures += ratio > limit;
    std::fprintf(stderr, "%-44s %9.2f ms / %9.2f ms = %5.2f (limit %.1f)%s\n", what, measured, reference, ratio, limit,
                 ratio > limit ? "  TOO SLOW" : "");
}

double replace_all(QTextEdit &area)
{
    SearchDialog dialog(&area);
    dialog.search_input->setText(u"needle"_s);
    dialog.replace_input->setText(u"haystack"_s);
    dialog.show();
    QApplication::processEvents();
    return milliseconds([&] { dialog.replace_all(); });
}

double plain_replace_all(QTextEdit &area)
{
    return milliseconds([&] {
        QTextCursor block(area.document());
        block.beginEditBlock();
        for (QTextCursor cursor(area.document());;) {
            cursor = area.document()->find(u"needle"_s, cursor, QTextDocument::FindCaseSensitively);
            if (cursor.isNull())
                break;
            cursor.insertText(u"haystack"_s);
        }
        block.endEditBlock();
    });
}

double find_all(QTextEdit &area)
{
    SearchDialog dialog(&area);
    dialog.search_input->setText(u"needle"_s);
    return milliseconds([&] { dialog.find_all_matches(); });
}

double plain_find_all(QTextEdit &area)
{
    return milliseconds([&] {
        QTextCharFormat yellow;
        yellow.setBackground(Qt::yellow);
        QTextCursor block(area.document());
        block.beginEditBlock();
        for (QTextCursor cursor(area.document());;) {
            cursor = area.document()->find(u"needle"_s, cursor);
            if (cursor.isNull())
                break;
            cursor.mergeCharFormat(yellow);
        }
        block.endEditBlock();
    });
}

void find_next_in_a_long_book()
{
    const QString book = bench::book_text(k_long_book_words);
    for (const auto &[name, place] :
         {std::pair{"Find Next, match at the end", 1.0}, {"Find Next, match in the middle", 0.5}}) {
        QString text = book;
        text.insert(text.indexOf(u' ', qsizetype(double(text.size() - 100) * place)), u" needle one two needle"_s);
        QTextEdit area;
        area.setPlainText(text);
        area.show();
        QApplication::processEvents();
        area.moveCursor(QTextCursor::End); // lays everything out
        SearchDialog dialog(&area);
        dialog.show();
        dialog.search_input->setText(u"needle"_s);
        double reference = 1e9;
        double first = 1e9;
        double second = 1e9;
        for (int i = 0; i < 5; ++i) {
            const QRegularExpression needle(u"\\bneedle\\b"_s, QRegularExpression::UseUnicodePropertiesOption);
            reference = std::min(reference, milliseconds([&] { needle.globalMatch(text).hasNext(); }));
            dialog.matches.reset();
            first = std::min(first, milliseconds([&] { dialog.find_next(); }));
            second = std::min(second, milliseconds([&] { dialog.find_next(); }));
        }
        report(name, first, reference, 1.2);
        std::fprintf(stderr, "%-44s %9.2f ms\n", "    its second step, including the rest", second);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    BoxAnswers answers;
    application.installEventFilter(&answers);

    const QString many = text_with(10'000);
    const double replaced = fastest(many, replace_all);
    report("Replace All, 10,000", replaced, fastest(many, plain_replace_all), 3);
    report("Replace All, 10,000 against 1,000", replaced, fastest(text_with(1'000), replace_all), 15);
    report("find_all_matches, 10,000", fastest(many, find_all), fastest(many, plain_find_all), 1.5);
    find_next_in_a_long_book();
    return failures > 0;
}
