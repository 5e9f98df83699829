// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// Find and replace against the plain way with Qt, on text areas that are shown and laid out.

#include "book_text.h"
#include "measure.h"

#include <my_classes/search_dialog.h>

#include <QtCore/QRegularExpression>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTextEdit>

#include <fcntl.h>
#include <unistd.h>

using my_classes::SearchDialog;
using namespace Qt::StringLiterals;

namespace {

/// Answers every message box at once.
class BoxAnswers : public QObject
{
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *box = qobject_cast<QMessageBox *>(watched); box && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(box, &QDialog::accept, Qt::QueuedConnection);
        return false;
    }
};

/// Sends the diagnostic lines where nobody looks.
class Quiet
{
public:
    Quiet()
        : m_output(dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }
    ~Quiet()
    {
        dup2(m_output, STDOUT_FILENO);
        close(m_output);
    }
    Q_DISABLE_COPY_MOVE(Quiet)

private:
    int m_output;
};

/// The book with `count` of its words, evenly spread, replaced by "needle".
QString book_with_needles(int count)
{
    constexpr int book_words = 100'000;
    QStringList lines = bench::book_text(book_words).split(u'\n');
    int word = 0;
    for (QString &line : lines) {
        QStringList words = line.split(u' ');
        for (QString &each : words) {
            if (word++ % (book_words / count) == 0)
                each = u"needle"_s;
        }
        line = words.join(u' ');
    }
    return lines.join(u'\n');
}

/// Milliseconds that `work` takes on a fresh text area, the median of some rounds.
template<typename Work>
double on_text_area(const QString &text, const Work &work)
{
    const Quiet quiet;
    std::vector<double> times;
    for (int round = 0; round < 7; ++round) {
        QTextEdit area;
        area.resize(800, 600);
        area.setPlainText(text);
        area.show();
        (void)QTest::qWaitForWindowExposed(&area);
        for (const auto place : {QTextCursor::End, QTextCursor::Start}) { // lays everything out
            area.moveCursor(place);
            QCoreApplication::processEvents();
        }
        SearchDialog dialog(&area);
        dialog.search_input->setText(u"needle"_s);
        dialog.replace_input->setText(u"haystack"_s);
        times.push_back(bench::milliseconds([&] { work(&area, &dialog); }));
    }
    return bench::median(times);
}

/// Finds every needle and does `change` with it, in one edit block.
template<typename Change>
void find_and_change(QTextDocument *document, const Change &change)
{
    QTextCursor block(document);
    block.beginEditBlock();
    for (QTextCursor cursor = document->find(u"needle"_s, 0); !cursor.isNull();
         cursor = document->find(u"needle"_s, cursor))
        change(cursor);
    block.endEditBlock();
}

void measure_all_occurrences()
{
    QTextCharFormat yellow;
    yellow.setBackground(Qt::yellow);
    const QString many = book_with_needles(10'000);
    const auto replace_all = [](QTextEdit *, SearchDialog *dialog) { dialog->replace_all(); };
    const double replaced = on_text_area(many, replace_all);
    const double plainly_replaced = on_text_area(many, [](QTextEdit *area, SearchDialog *) {
        find_and_change(area->document(), [](QTextCursor &cursor) { cursor.insertText(u"haystack"_s); });
    });
    bench::print_row(u"Replace All, 10,000 / find and insertText"_s, {replaced, plainly_replaced}, 3);
    bench::print_row(u"Replace All, 10,000 / 1,000"_s, {replaced, on_text_area(book_with_needles(1'000), replace_all)},
                     15);

    const double marked = on_text_area(many, [](QTextEdit *, SearchDialog *dialog) { dialog->find_all_matches(); });
    const double plainly_marked = on_text_area(many, [&](QTextEdit *area, SearchDialog *) {
        find_and_change(area->document(), [&](QTextCursor &cursor) { cursor.mergeCharFormat(yellow); });
    });
    bench::print_row(u"find_all_matches, 10,000 / find and mergeCharFormat"_s, {marked, plainly_marked}, 1.5);
}

void measure_find_next()
{
    QTextEdit area;
    area.resize(800, 600);
    area.setPlainText(bench::book_text(1'000'000));
    area.show();
    const QRegularExpression needle(u"\\bneedle\\b"_s, QRegularExpression::UseUnicodePropertiesOption);
    for (const int percent : {0, 50, 99}) {
        QTextCursor cursor(area.document());
        cursor.setPosition(int(area.toPlainText().indexOf(u' ', area.document()->characterCount() / 100 * percent)));
        cursor.insertText(u" needle one two needle"_s);
        area.moveCursor(QTextCursor::End); // lays everything out
        // How fast a text is read depends on where its memory happens to be: the best of several places.
        bench::Pair times{1e9, 1e9};
        double step = 1e9;
        for (int round = 0; round < 15; ++round) {
            const Quiet quiet;
            const QString text = area.toPlainText();
            times.plain = std::min(times.plain, bench::milliseconds([&] { (void)needle.globalMatch(text).hasNext(); }));
            SearchDialog dialog(&area);
            dialog.show();
            dialog.search_input->setText(u"needle"_s);
            times.ours = std::min(times.ours, bench::milliseconds([&] { dialog.find_next(); }));
            step = std::min(step, bench::milliseconds([&] { dialog.find_next(); }));
        }
        bench::print_row(u"Find Next, match at %1%, 1,000,000 words / globalMatch"_s.arg(percent), times, 1.2);
        bench::print_row(u"the step to a match two words on / that globalMatch"_s, {step, times.plain}, 0.2);
        area.undo();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    BoxAnswers answers;
    application.installEventFilter(&answers);
    bench::print_header("ours ms", "plain ms");
    measure_all_occurrences();
    measure_find_next();
    return 0;
}
