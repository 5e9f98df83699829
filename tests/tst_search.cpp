// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/search_dialog.h>

#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <memory>
#include <optional>

using my_classes::SearchDialog;
using namespace Qt::StringLiterals;

namespace {

/// What the dialog is to do, step by step and nothing saved, on a text area of its own.
struct Reference
{
    QTextEdit area;
    QString wanted, replacement;
    QStringList log; // lines and boxes
    std::optional<QRegularExpressionMatchIterator> matches;
    bool can_replace = false;
    bool is_endless = false;

    void box(const QString &title, const QString &text) { log.append(u"box: "_s + title + u": "_s + text); }

    void select(qsizetype start, qsizetype length)
    {
        const qsizetype end = area.document()->characterCount() - 1;
        QTextCursor cursor = area.textCursor();
        cursor.setPosition(int(std::min(start, end)));
        cursor.setPosition(int(std::min(start + length, end)), QTextCursor::KeepAnchor);
        area.setTextCursor(cursor);
    }

    void find_next()
    {
        log.append(u"finding next..."_s);
        if (!matches) {
            if (wanted.isEmpty())
                return;
            const QRegularExpression expression(u"\\b"_s + wanted + u"\\b"_s,
                                                QRegularExpression::UseUnicodePropertiesOption);
            if (expression.isValid())
                matches = expression.globalMatch(area.toPlainText());
            if (!matches || !matches->hasNext()) {
                matches.reset();
                return box(u"Search"_s, u"No matches found!"_s);
            }
        }
        if (matches->hasNext()) {
            can_replace = true;
            const QRegularExpressionMatch match = matches->next();
            log.append(u"Found next %1"_s.arg(match.capturedStart()));
            return select(match.capturedStart(), match.capturedLength());
        }
        can_replace = false;
        box(u"Search"_s, u"No more matches found!"_s);
        matches.reset();
    }

    void replace()
    {
        QTextCursor cursor = area.textCursor();
        if (!cursor.hasSelection())
            return;
        cursor.insertText(replacement);
        matches.reset();
        find_next();
    }

    void replace_all()
    {
        if (wanted.isEmpty())
            return;
        int position = 0;
        int count = 0;
        for (;; ++count) {
            const QString text = area.toPlainText();
            const qsizetype found = text.indexOf(wanted, std::min<qsizetype>(position, text.size()));
            is_endless = count > 40;
            if (found < 0 || is_endless)
                break;
            select(found, wanted.size());
            position += int(wanted.size());
            replace();
        }
        box(u"Replace All"_s, u"Total %1 matches replaced!"_s.arg(count));
        matches.reset();
    }

    QList<int> find_all()
    {
        QList<int> results;
        QTextCursor all(area.document());
        all.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setBackground(Qt::transparent);
        all.mergeCharFormat(format);
        format.setBackground(Qt::yellow);
        for (QTextCursor cursor(area.document()); !wanted.isEmpty() && !cursor.isNull() && !cursor.atEnd();) {
            cursor = area.document()->find(wanted, cursor);
            if (!cursor.isNull()) {
                results.append(cursor.position() - int(wanted.size()));
                cursor.mergeCharFormat(format);
            }
        }
        return results;
    }
};

/// What `action` writes, without the test framework's own lines.
QString trace_of(const std::function<void()> &action)
{
    static const QRegularExpression remark(u"^(QWARN|WARNING).*\n"_s, QRegularExpression::MultilineOption);
    return test_support::standard_output_of(action).remove(remark);
}

QString state_of(const QTextEdit &area)
{
    const QTextCursor cursor = area.textCursor();
    return area.toHtml() + u"\n%1 %2"_s.arg(cursor.anchor()).arg(cursor.position());
}

/// Presses `key` in every message box, as soon as it is shown, and writes the box to standard output.
class BoxAnswers : public QObject
{
public:
    explicit BoxAnswers(std::function<void(QMessageBox *)> answer = {})
        : m_answer(std::move(answer))
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *box = qobject_cast<QMessageBox *>(watched); box && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                box,
                [this, box] {
                    ++count;
                    QTextStream(stdout) << "box: " << box->windowTitle() << ": " << box->text() << Qt::endl;
                    if (m_answer)
                        m_answer(box);
                    else
                        QTest::keyClick(box, Qt::Key_Return);
                },
                Qt::QueuedConnection);
        return false;
    }

    std::function<void(QMessageBox *)> m_answer;
};

QAbstractButton *button(QWidget *parent, const QString &text)
{
    for (auto *candidate : parent->findChildren<QAbstractButton *>()) {
        if (candidate->text().remove(u'&') == text)
            return candidate;
    }
    return nullptr;
}

/// A window with a text area, and the dialog on it.
struct Scene
{
    explicit Scene(const QString &text = {})
        : window(new QWidget)
        , area(new QTextEdit)
    {
        (new QVBoxLayout(window.get()))->addWidget(area);
        area->setPlainText(text);
        dialog = new SearchDialog(area);
        window->show();
        dialog->show();
    }
    ~Scene() { delete dialog; }

    void type(const QString &search, const QString &replacement)
    {
        dialog->search_input->setText(search);
        dialog->replace_input->setText(replacement);
    }

    std::unique_ptr<QWidget> window;
    QPointer<QTextEdit> area;
    QPointer<SearchDialog> dialog;
};

} // namespace

class TstSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void same_as_step_by_step_data();
    void same_as_step_by_step();
    void keeps_up_with_the_document();
    void find_all_navigates();
    void keyboard_and_window();
    void opens_anew_from_the_editor();
    void replace_all_can_be_left_data();
    void replace_all_can_be_left();
    void runaway_pattern_has_no_matches();
    void survives_deletion_data();
    void survives_deletion();
};

void TstSearch::same_as_step_by_step_data()
{
    // Lists, separated by broken bars.
    QTest::addColumn<QString>("alphabet");
    QTest::addColumn<QString>("searches");
    QTest::addColumn<QString>("replacements");
    QTest::newRow("overlaps and boundaries")
        << u"a¦aa¦b¦a b¦ab¦_¦ ¦\n¦-¦."_s << u"a¦aa¦ab¦b¦aba¦a b¦ ¦-"_s << u"¦b¦aa¦xa¦ba¦a b¦-¦_"_s;
    QTest::newRow("words") << u"cat ¦Cat ¦concat ¦the cat. ¦two ¦two\n¦don't ¦x\u00a0¦\u2028"_s
                           << u"cat¦at¦two¦don't¦x ¦t"_s << u"¦dog¦two two¦a cat¦Cat¦cat-cat¦xx\ny"_s;
    QTest::newRow("patterns") << u"cat ¦cot ¦c.t ¦aab ¦(x) ¦$5 ¦a\n¦ab"_s
                              << u"c.t¦.¦(¦[a¦a+¦a|c¦^a¦a$¦(?<=a)b¦\\w+¦\\s¦x*¦$5¦(?=c)¦(*UTF)a"_s
                              << u"¦c.t¦.¦a+¦no¦((¦\n"_s;
    QTest::newRow("scripts")
        << u"est\u00e1 ¦est\u00e1s ¦e\u0301¦\U0001F600¦\U0001F600\U0001F600 ¦\u05e9\u05dc\u05d5\u05dd ¦\u0639\u0631\u0628\u064a ¦\u4e2d\u6587¦\U00010400¦\xd83d¦ "_s
        << u"est\u00e1¦\u00e1¦e¦\u0301¦\U0001F600¦\u05e9\u05dc\u05d5\u05dd¦\u05dc¦\u4e2d¦\U00010400¦\xd83d¦\xde00"_s
        << u"¦x¦\U0001F600¦\u05e9\u05dc¦est\u00e1 y¦\xd83d¦\U00010400"_s;
    QTest::newRow("rich text")
        << u"<p>a <b>b</b>¦<table border=1><tr><td>a</td><td>b a</td></tr></table>¦<table><tr><td>ab</td><td>b</td></tr></table>¦<img src=x>¦<i>aa</i> ¦<p>ab"_s
        << u"a¦b¦\ufffc¦aa¦a\nb¦b\nb¦\n¦.¦ab"_s << u"¦x¦a¦b a¦x\ny"_s;
}

void TstSearch::same_as_step_by_step()
{
    QFETCH(QString, alphabet);
    QFETCH(QString, searches);
    QFETCH(QString, replacements);
    const QStringList pieces = alphabet.split(u'¦');
    const QStringList patterns = searches.split(u'¦');
    const QStringList texts = replacements.split(u'¦');
    const bool is_rich = alphabet.startsWith(u'<');
    QRandomGenerator random(7);
    const auto any_of = [&](const QStringList &list) { return list.at(random.bounded(list.size())); };

    int compared = 0;
    for (int i = 0; i < 400; ++i) {
        QString document;
        for (int words = random.bounded(12); words >= 0; --words)
            document += any_of(pieces);
        Reference wanted;
        QTextEdit area;
        for (QTextEdit *each : {&wanted.area, &area})
            is_rich ? each->setHtml(document) : each->setPlainText(document);
        const QString before = area.toPlainText();
        SearchDialog dialog(&area);
        dialog.search_input->setText(wanted.wanted = any_of(patterns));
        dialog.replace_input->setText(wanted.replacement = any_of(texts));

        const int steps = random.bounded(4);
        const bool replaces_one = random.bounded(3) == 0;
        for (int step = 0; step < steps; ++step)
            wanted.find_next();
        if (replaces_one)
            wanted.replace();
        wanted.replace_all();
        if (wanted.is_endless)
            continue;
        QString before_all;
        BoxAnswers answers;
        const QString seen = trace_of([&] {
            for (int step = 0; step < steps; ++step)
                dialog.find_next();
            if (replaces_one)
                dialog.replace();
            before_all = area.toPlainText();
            dialog.replace_all();
        });
        const QByteArray what = u"'%1': '%2' by '%3'"_s.arg(document, wanted.wanted, wanted.replacement).toUtf8();
        QVERIFY2(seen.split(u'\n', Qt::SkipEmptyParts) == wanted.log,
                 what + "\n" + seen.toUtf8() + "\n-- not --\n" + wanted.log.join(u'\n').toUtf8());
        QVERIFY2(state_of(area) == state_of(wanted.area), what);
        QCOMPARE(dialog.replace_button->isEnabled(), wanted.can_replace);
        QCOMPARE(dialog.replace_all_button->isEnabled(), wanted.can_replace);
        QVERIFY(!dialog.matches);
        if (!seen.contains(u"Total 0 "_s)) {
            area.undo();
            QVERIFY2(area.toPlainText() == before_all, what);
        }

        while (area.document()->isUndoAvailable())
            area.undo();
        QVERIFY2(area.toPlainText() == before, what);
        while (wanted.area.document()->isUndoAvailable())
            wanted.area.undo();
        const QList<int> results = wanted.find_all();
        trace_of([&] { dialog.find_all_matches(); });
        QCOMPARE(dialog.search_results, results);
        QCOMPARE(area.toHtml(), wanted.area.toHtml());
        ++compared;
    }
    QVERIFY(compared > 200);
}

void TstSearch::keeps_up_with_the_document()
{
    QRandomGenerator random(3);
    QTextEdit area;
    area.setPlainText(u"cat concatenate cat\ncat\n"_s);
    SearchDialog dialog(&area);
    dialog.search_input->setText(u"cat"_s);
    BoxAnswers answers;
    for (int i = 0; i < 1500; ++i) {
        QTextDocument *document = area.document();
        const int end = document->characterCount() - 1;
        QTextCursor cursor(document);
        cursor.setPosition(random.bounded(end + 1));
        const int kind = random.bounded(14);
        const bool is_silent = kind < 2 && document->blockSignals(true) == false;
        if (kind == 13)
            cursor.beginEditBlock();
        if (kind < 8) {
            cursor.setPosition(std::min(cursor.position() + random.bounded(5), end), QTextCursor::KeepAnchor);
            cursor.insertText(QStringList{u"x"_s, u"cat "_s, u" cat"_s, u"\ncat\n"_s, {}}.at(random.bounded(5)));
        } else if (kind == 8) {
            document->undo();
        } else if (kind == 9 && random.bounded(4) == 0) {
            area.setHtml(u"cat<table><tr><td>cat</td><td>cats</td></tr></table> cat"_s);
        } else if (kind == 10) {
            area.setPlainText(area.toPlainText().replace(u"cat "_s, u"dog "_s) + u" cat"_s);
        } else if (kind == 11 && random.bounded(4) == 0) {
            area.setDocument(new QTextDocument(u"a cat"_s, &area));
        } else if (kind == 12) {
            document->redo();
        } else if (kind == 13) {
            cursor.insertText(u"cat "_s);
        }
        if (is_silent)
            document->blockSignals(false);

        const QString text = area.toPlainText();
        const QRegularExpressionMatch match = QRegularExpression(u"\\bcat\\b"_s).match(text);
        const QString seen = trace_of([&] { dialog.restart_search(); });
        QVERIFY2(match.hasMatch() ? seen.contains(u"Found next %1\n"_s.arg(match.capturedStart()))
                                  : seen.contains(u"No matches found!"_s),
                 (seen + text).toUtf8());
        if (kind == 13)
            cursor.endEditBlock();
    }
}

void TstSearch::find_all_navigates()
{
    Scene scene(u"cat concatenate Cat cat"_s);
    scene.type(u"CAT"_s, {});
    scene.area->moveCursor(QTextCursor::End);
    QCOMPARE(trace_of([&] { scene.dialog->find_all_matches(); }), u"[0, 7, 16, 20]\nNavigate to position -1\n"_s);
    QCOMPARE(scene.area->textCursor().position(), 23);
    QCOMPARE(trace_of([&] { scene.dialog->next_match(); }), u"Next match -1\nNavigate to position -1\n"_s);
    QCOMPARE(trace_of([&] { scene.dialog->previous_match(); }), u"Previous match -1\nNavigate to position 2\n"_s);
    QCOMPARE(scene.area->textCursor().position(), 2);
    scene.area->undo(); // marking is one step
    QVERIFY(!scene.area->toHtml().contains(u"background-color"_s));

    scene.area->setPlainText(u"a cat"_s);
    QCOMPARE(trace_of([&] { scene.dialog->find_all_matches(); }), u"[2]\nNavigate to position 1\n"_s);
    QCOMPARE(scene.area->textCursor().position(), 1);
    QCOMPARE(scene.window->focusWidget(), scene.area);
    scene.area->setPlainText(u"a"_s);
    scene.dialog->navigate_to_match(40); // from an older text
    QCOMPARE(scene.area->textCursor().position(), 1);
    BoxAnswers answers;
    QCOMPARE(trace_of([&] { scene.dialog->find_all_matches(); }), u"[]\nbox: Search: No matches found.\n"_s);
    QCOMPARE(trace_of([&] { scene.dialog->next_match(); }), u"Next match -1\n"_s);
}

void TstSearch::keyboard_and_window()
{
    Scene scene(u"cat dog cat"_s);
    SearchDialog *dialog = scene.dialog;
    QTRY_VERIFY(QTest::qWaitForWindowActive(dialog));
    QVERIFY(dialog->search_input->hasFocus());
    for (const auto *label : dialog->findChildren<QLabel *>())
        QVERIFY(label->buddy());
    QVERIFY(!dialog->search_input->accessibleName().isEmpty());

    QTest::keyClicks(dialog->search_input, u"cat"_s);
    QTest::keyClick(dialog->search_input, Qt::Key_Return);
    QCOMPARE(scene.area->textCursor().selectionStart(), 0); // once
    QVERIFY(dialog->replace_button->isEnabled());
    dialog->replace_input->setText(u"cow"_s);
    QTest::mouseClick(dialog->replace_button, Qt::LeftButton);
    QCOMPARE(scene.area->toPlainText(), u"cow dog cat"_s);
    QCOMPARE(scene.area->textCursor().selectedText(), u"cat"_s);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(scene.area->textCursor().position(), 11);
    QVERIFY(!scene.area->textCursor().hasSelection());

    dialog->show();
    QCOMPARE(dialog->search_input->selectedText(), u"cat"_s);
    scene.area->selectAll();
    dialog->close();
    QVERIFY(!scene.area->textCursor().hasSelection());
    dialog->show();
    QCOMPARE(dialog->windowHandle()->transientParent(), scene.window->windowHandle());
    QWidget other;
    scene.area->setParent(&other);
    other.show();
    scene.area->show();
    QCOMPARE(dialog->windowHandle()->transientParent(), other.windowHandle());
    scene.window->close();

    QTimer::singleShot(0, &other, &QWidget::close);
    QTimer::singleShot(5000, &other, [] { QApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0); // the dialog alone does not keep the application running
    delete scene.area;
    QVERIFY(!scene.dialog);

    SearchDialog orphan(nullptr);
    orphan.search_input->setText(u"cat"_s);
    QCOMPARE(trace_of([&] {
                 orphan.find_next();
                 orphan.find_all_matches();
                 orphan.next_match();
                 orphan.replace_all();
                 orphan.clear_highlight();
                 orphan.close();
             }),
             QString());
}

void TstSearch::opens_anew_from_the_editor()
{
    auto editor = std::make_unique<my_classes::CustomTextEditor>(std::nullopt);
    editor->set_text_content(u"one two"_s);
    editor->show();
    editor->search_text();
    const QPointer<SearchDialog> first = editor->search_dialog;
    QCOMPARE(first->editor, editor->text_edit);
    first->search_input->setText(u"two"_s);
    first->close();
    editor->text_edit->selectAll();
    for (auto *action : editor->findChildren<QAction *>()) {
        if (action->text() == u"Search"_s)
            action->trigger();
    }
    QVERIFY(!first);
    const QPointer<SearchDialog> second = editor->search_dialog;
    QVERIFY(second->isVisible());
    QCOMPARE(second->search_input->text(), QString());
    QCOMPARE(editor->text_edit->textCursor().selectedText(), u"one two"_s); // Replace is to find it
    editor.reset();
    QVERIFY(!second);
}

void TstSearch::replace_all_can_be_left_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("replacement");
    QTest::newRow("a box at every step") << u"a b"_s << u"a"_s << u"aa"_s;
    QTest::newRow("no box at all") << u"two two"_s << u"two"_s << u"two two"_s;
}

void TstSearch::replace_all_can_be_left()
{
    QFETCH(QString, text);
    QFETCH(QString, search);
    QFETCH(QString, replacement);
    Scene scene(text);
    scene.type(search, replacement);
    scene.dialog->find_next();

    int boxes = 0;
    BoxAnswers answers([&](QMessageBox *box) {
        QAbstractButton *stop = button(box, u"Stop"_s);
        if (box->windowTitle() == u"Search"_s && ++boxes == 4)
            return QTest::mouseClick(stop, Qt::LeftButton);
        if (boxes < 4 && box->windowTitle() == u"Search"_s) {
            QVERIFY(stop);
            QCOMPARE(scene.area->toPlainText(), QString(boxes + 1, u'a') + u" b"_s);
        } else {
            QVERIFY(!stop);
        }
        if (boxes == 1)
            QTest::keyClick(box, Qt::Key_Return);
        else if (boxes == 2)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            box->close();
    });
    QTimer waits_for_progress;
    QString while_running;
    connect(&waits_for_progress, &QTimer::timeout, this, [&] {
        if (auto *progress = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget())) {
            while_running = scene.area->toPlainText();
            QTest::mouseClick(button(progress, u"Stop"_s), Qt::LeftButton);
        }
    });
    waits_for_progress.start(10);

    const QString seen = trace_of([&] { QTest::mouseClick(scene.dialog->replace_all_button, Qt::LeftButton); });
    const auto total = QRegularExpression(u"box: Replace All: Total (\\d+) matches replaced!\n$"_s).match(seen);
    QVERIFY(total.hasMatch());
    const int count = total.captured(1).toInt();
    QCOMPARE(seen.count(u"finding next..."_s), count);
    QCOMPARE(scene.area->toPlainText().size(), text.size() + count * (replacement.size() - search.size()));
    if (while_running.isEmpty())
        QCOMPARE(count, 4);
    else
        QVERIFY(while_running.size() > text.size());
    QVERIFY(!scene.dialog->matches);
    scene.area->undo();
    QCOMPARE(scene.area->toPlainText(), text);
}

void TstSearch::runaway_pattern_has_no_matches()
{
    Scene scene(QString(20'000, u'a') + u'!');
    BoxAnswers answers;
    for (const QString &pattern : {u"(a+)+$"_s, u"(a|aa)+$"_s, u"(.*)*x"_s, u"(?:a|.)*b"_s}) {
        scene.type(pattern, {});
        const QString seen = trace_of([&] { scene.dialog->find_next(); });
        QCOMPARE(seen, u"finding next...\nbox: Search: No matches found!\n"_s);
    }
}

void TstSearch::survives_deletion_data()
{
    QTest::addColumn<QString>("dies");
    QTest::addColumn<QString>("during");
    for (const char *dies : {"area", "window", "dialog"}) {
        for (const char *during : {"Return", "Replace All", "Progress", "Count", "Nothing"})
            QTest::addRow("%s, %s", dies, during) << QString::fromLatin1(dies) << QString::fromLatin1(during);
    }
}

void TstSearch::survives_deletion()
{
    QFETCH(QString, dies);
    QFETCH(QString, during);
    Scene scene(u"two b"_s);
    const auto die = [&] {
        if (dies == u"area"_s)
            delete scene.area;
        else if (dies == u"window"_s)
            scene.window.reset();
        else
            delete scene.dialog;
    };
    bool happened = false;
    BoxAnswers answers([&](QMessageBox *) {
        happened = true;
        die();
    });
    QTimer waits_for_progress;
    connect(&waits_for_progress, &QTimer::timeout, this, [&] {
        if (qobject_cast<QProgressDialog *>(QApplication::activeModalWidget())) {
            happened = true;
            die();
        }
    });
    waits_for_progress.start(10);

    trace_of([&] {
        scene.type(u"two"_s, during == u"Replace All"_s ? u"twos"_s : u"two two"_s);
        if (during == u"Return"_s) {
            scene.type(u"nothing"_s, {});
            QTest::keyClick(scene.dialog->search_input, Qt::Key_Return);
        } else if (during == u"Count"_s) {
            scene.type(u"nothing"_s, {});
            scene.dialog->replace_all();
        } else if (during == u"Nothing"_s) {
            happened = true;
            die();
        } else {
            scene.dialog->replace_all();
        }
    });
    QVERIFY(happened);
    QVERIFY(!scene.dialog);
    if (scene.area)
        QVERIFY(scene.area->toPlainText().endsWith(u" b"_s));
}

MY_CLASSES_TEST_MAIN(TstSearch)
#include "tst_search.moc"
