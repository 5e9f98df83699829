// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtWidgets/QProgressDialog>

#include <algorithm>
#include <memory>
#include <optional>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

/// What the dialog is to do, step by step and nothing saved, on a text area of its own.
struct Reference
{
    QTextEdit area;
    QString wanted, replacement;
    QStringList log; // lines and boxes
    std::optional<QRegularExpressionMatchIterator> matches;
    int results = 0, index = -1;
    bool can_replace = false;
    bool is_endless = false;

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
        if (wanted.isEmpty())
            return;
        if (!matches) {
            const QRegularExpression expression(u"\\b"_s + wanted + u"\\b"_s,
                                                QRegularExpression::UseUnicodePropertiesOption);
            if (expression.isValid())
                matches = expression.globalMatch(area.toPlainText());
            if (!matches || !matches->hasNext()) {
                matches.reset();
                return log.append(u"box: Search: No matches found!"_s);
            }
        }
        can_replace = matches->hasNext();
        if (can_replace) {
            const QRegularExpressionMatch match = matches->next();
            log.append(u"Found next %1"_s.arg(match.capturedStart()));
            return select(match.capturedStart(), match.capturedLength());
        }
        log.append(u"box: Search: No more matches found!"_s);
        matches.reset();
    }

    void replace()
    {
        if (!area.textCursor().hasSelection())
            return;
        area.textCursor().insertText(replacement);
        matches.reset();
        find_next();
    }

    void replace_all()
    {
        if (wanted.isEmpty())
            return;
        int count = 0;
        for (qsizetype position = 0;; position += wanted.size(), ++count) {
            const QString text = area.toPlainText();
            const qsizetype found = text.indexOf(wanted, std::min(position, text.size()));
            is_endless = count > 40;
            if (found < 0 || is_endless)
                break;
            select(found, wanted.size());
            replace();
        }
        log.append(u"box: Replace All: Total %1 matches replaced!"_s.arg(count));
        matches.reset();
    }

    void find_all_matches()
    {
        if (wanted.isEmpty())
            return;
        QTextCharFormat format;
        format.setBackground(Qt::transparent);
        QTextCursor cursor(area.document());
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
        format.setBackground(Qt::yellow);
        cursor.setPosition(0);
        QStringList starts;
        while (!cursor.atEnd() && !(cursor = area.document()->find(wanted, cursor)).isNull()) {
            starts.append(QString::number(cursor.position() - wanted.size()));
            cursor.mergeCharFormat(format);
        }
        log.append(u'[' + starts.join(u", "_s) + u']');
        if (starts.isEmpty())
            return log.append(u"box: Search: No matches found."_s);
        results = int(starts.size());
        navigate_to(index = starts.constFirst().toInt() - 1);
    }

    void previous_match()
    {
        log.append(u"Previous match %1"_s.arg(index));
        if (results > 0)
            navigate_to(index = ((index - 1) % results + results) % results);
    }

    void navigate_to(int position)
    {
        log.append(u"Navigate to position %1"_s.arg(position));
        if (position >= 0)
            select(position, 0);
    }
};

/// What `action` writes, without the test framework's own lines.
QString trace_of(const std::function<void()> &action)
{
    static const QRegularExpression remark(u"^(QWARN|WARNING).*\n"_s, QRegularExpression::MultilineOption);
    return standard_output_of(action).remove(remark);
}

/// Answers message boxes (with Return, unless told otherwise) and progress dialogs as soon as they are shown. Message
/// boxes are written to standard output.
struct Answers : QObject
{
    using Answer = std::function<void(QDialog *)>;

    explicit Answers(Answer answer = [](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Return); })
        : m_answer(std::move(answer))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (event->type() != QEvent::Show || !dialog || qobject_cast<SearchDialog *>(dialog))
            return false;
        if (const auto *box = qobject_cast<QMessageBox *>(dialog))
            QTextStream(stdout) << "box: " << box->windowTitle() << ": " << box->text() << Qt::endl;
        QMetaObject::invokeMethod(
            dialog, [this, dialog] { m_answer(dialog); }, Qt::QueuedConnection);
        return false;
    }

    Answer m_answer;
};

} // namespace

class TstSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void same_as_step_by_step_data()
    {
        QTest::addColumn<QStringList>("lists"); // of document, search and replacement, separated by broken bars
        QTest::newRow("overlaps and boundaries")
            << QStringList{u"a¦aa¦b¦a b¦ab¦_¦ ¦\n¦-¦."_s, u"a¦aa¦ab¦b¦aba¦a b¦ ¦-"_s, u"¦b¦aa¦xa¦ba¦a b¦-¦_"_s};
        QTest::newRow("words") << QStringList{u"cat ¦Cat ¦concat ¦the cat. ¦two ¦two\n¦don't ¦x\u00a0¦\u2028"_s,
                                              u"cat¦at¦two¦don't¦x ¦t"_s, u"¦dog¦two two¦a cat¦Cat¦cat-cat¦xx\ny"_s};
        QTest::newRow("patterns") << QStringList{u"cat ¦cot ¦c.t ¦aab ¦(x) ¦$5 ¦a\n¦ab"_s,
                                                 u"c.t¦.¦(¦[a¦a+¦a|c¦^a¦a$¦(?<=a)b¦\\w+¦\\s¦x*¦$5¦(?=c)¦(*UTF)a"_s,
                                                 u"¦c.t¦.¦a+¦no¦((¦\n"_s};
        QTest::newRow("scripts") << QStringList{
            u"est\u00e1 ¦est\u00e1s ¦e\u0301¦\U0001F600¦\U0001F600\U0001F600 ¦\u05e9\u05dc\u05d5\u05dd ¦\u0639\u0631\u0628\u064a ¦\u4e2d\u6587¦\U00010400¦\xd83d¦ "_s,
            u"est\u00e1¦\u00e1¦e¦\u0301¦\U0001F600¦\u05e9\u05dc\u05d5\u05dd¦\u05dc¦\u4e2d¦\U00010400¦\xd83d¦\xde00"_s,
            u"¦x¦\U0001F600¦\u05e9\u05dc¦est\u00e1 y¦\xd83d¦\U00010400"_s};
        QTest::newRow("rich text") << QStringList{
            u"<p>a <b>b</b>¦<table border=1><tr><td>a</td><td>b a</td></tr></table>¦<table><tr><td>ab</td><td>b</td></tr></table>¦<img src=x>¦<i>aa</i> ¦<p>ab"_s,
            u"a¦b¦\ufffc¦aa¦a\nb¦b\nb¦\n¦.¦ab"_s, u"¦x¦a¦b a¦x\ny"_s};
    }

    void same_as_step_by_step()
    {
        QFETCH(QStringList, lists);
        QRandomGenerator random(7);
        const auto any_of = [&](const QString &list) {
            const QStringList items = list.split(u'¦');
            return items.at(random.bounded(items.size()));
        };

        int compared = 0;
        for (int i = 0; i < 300; ++i) {
            QString document;
            for (int words = random.bounded(24); words >= 0; --words)
                document += any_of(lists[0]);
            Reference wanted;
            QTextEdit area;
            for (QTextEdit *each : {&wanted.area, &area})
                lists[0].startsWith(u'<') ? each->setHtml(document) : each->setPlainText(document);
            const QString before = area.toPlainText();
            SearchDialog dialog(&area);
            dialog.search_input->setText(wanted.wanted = any_of(lists[1]));
            dialog.replace_input->setText(wanted.replacement = any_of(lists[2]));

            const bool marks = random.bounded(2) == 0;
            const int steps = random.bounded(4);
            const bool replaces_one = random.bounded(3) == 0;
            QString before_all;
            const auto act_on = [&](auto &subject, const QTextEdit &text_area) {
                if (marks) {
                    subject.find_all_matches();
                    subject.previous_match();
                }
                for (int step = 0; step < steps; ++step)
                    subject.find_next();
                if (replaces_one)
                    subject.replace();
                before_all = text_area.toPlainText();
                subject.replace_all();
                subject.find_next(); // from the top
            };
            act_on(wanted, wanted.area);
            if (wanted.is_endless)
                continue;
            const Answers answers;
            const QString seen = trace_of([&] { act_on(dialog, area); });
            const QByteArray what = u"'%1': '%2' by '%3'\n%4\n-- not --\n%5"_s
                                        .arg(document, wanted.wanted, wanted.replacement, seen, wanted.log.join(u'\n'))
                                        .toUtf8();
            QVERIFY2(seen.split(u'\n', Qt::SkipEmptyParts) == wanted.log, what);
            QVERIFY2(area.toHtml() == wanted.area.toHtml(), what);
            QCOMPARE(area.textCursor().anchor(), wanted.area.textCursor().anchor());
            QCOMPARE(area.textCursor().position(), wanted.area.textCursor().position());
            QCOMPARE(dialog.replace_button->isEnabled(), wanted.can_replace);
            QCOMPARE(dialog.replace_all_button->isEnabled(), wanted.can_replace);
            if (seen.contains(u"Total "_s) && !seen.contains(u"Total 0 "_s)) {
                area.undo();
                QVERIFY2(area.toPlainText() == before_all, what);
            }
            while (area.document()->isUndoAvailable())
                area.undo();
            QVERIFY2(area.toPlainText() == before, what);
            ++compared;
        }
        QVERIFY(compared > 150);
    }

    void keeps_up_with_the_document()
    {
        QRandomGenerator random(3);
        QTextEdit area(u"cat concatenate cat\ncat\n"_s);
        SearchDialog dialog(&area);
        dialog.search_input->setText(u"cat"_s);
        const Answers answers;
        for (int i = 0; i < 1500; ++i) {
            QTextDocument *document = area.document();
            const int end = document->characterCount() - 1;
            QTextCursor cursor(document);
            const int kind = random.bounded(13);
            const bool stays_open = kind == 2; // the edit block, while searching
            document->blockSignals(kind < 2);
            if (kind < 9) {
                cursor.beginEditBlock();
                cursor.setPosition(random.bounded(end + 1));
                cursor.setPosition(std::min(cursor.position() + random.bounded(5), end), QTextCursor::KeepAnchor);
                cursor.insertText(QStringList{u"x"_s, u"cat "_s, u" cat"_s, u"\ncat\n"_s, {}}.at(random.bounded(5)));
                if (!stays_open)
                    cursor.endEditBlock();
            } else if (kind < 12) {
                kind == 9    ? document->undo()
                : kind == 10 ? document->redo()
                             : area.setPlainText(area.toPlainText().replace(u"cat "_s, u"dog "_s) + u" cat"_s);
            } else if (const int other = random.bounded(8); other == 0) {
                area.setHtml(u"cat<table><tr><td>cat</td><td>cats</td></tr></table> cat"_s);
            } else if (other == 1) {
                area.setDocument(new QTextDocument(u"a cat"_s, &area));
            }
            area.document()->blockSignals(false);

            const QString text = area.toPlainText();
            const QRegularExpressionMatch match = QRegularExpression(u"\\bcat\\b"_s).match(text);
            const QString seen = trace_of([&] { dialog.restart_search(); });
            QVERIFY2(match.hasMatch() ? seen.contains(u"Found next %1\n"_s.arg(match.capturedStart()))
                                      : seen.contains(u"No matches found!"_s),
                     (seen + text).toUtf8());
            if (stays_open)
                cursor.endEditBlock();
        }
    }

    void from_the_editor_by_keys_and_mouse()
    {
        auto editor = std::make_unique<CustomTextEditor>(std::nullopt);
        editor->set_text_content(u"cat dog cat"_s);
        editor->show();
        editor->search_text();
        const QPointer<SearchDialog> dialog = editor->search_dialog;
        const auto cursor = [&] { return editor->text_edit->textCursor(); };
        QTRY_VERIFY(QTest::qWaitForWindowActive(dialog));
        QCOMPARE(dialog->windowHandle()->transientParent(), editor->windowHandle());

        QTest::keyClicks(dialog->focusWidget(), u"cat"_s);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QCOMPARE(cursor().selectionStart(), 0); // not twice, through a default button
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(dialog->focusWidget(), u"cow"_s);
        QTest::mouseClick(dialog->replace_button, Qt::LeftButton);
        QCOMPARE(editor->text_edit->toPlainText(), u"cow dog cat"_s);
        QCOMPARE(cursor().selectedText(), u"cat"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(cursor().position(), 11);
        QVERIFY(!cursor().hasSelection());
        dialog->show();
        QCOMPARE(dialog->search_input->selectedText(), u"cat"_s);

        editor->text_edit->selectAll();
        editor->action(EditorCommand::Search)->trigger();
        QVERIFY(!dialog);
        const QPointer<SearchDialog> anew = editor->search_dialog;
        QCOMPARE(anew->search_input->text(), QString());
        QCOMPARE(cursor().selectedText(), u"cow dog cat"_s); // Replace is to find it
        anew->close();
        QVERIFY(!cursor().hasSelection());
        anew->show();
        QTimer::singleShot(0, editor.get(), &QWidget::close);
        QTimer::singleShot(5000, editor.get(), [] { QApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // the dialog alone does not keep the application running
        editor.reset();
        QVERIFY(!anew);
    }

    void replace_all_can_be_left()
    {
        for (const QString &replacement : {u"aa"_s, u"a a"_s}) { // a box at every step; no box at all
            QTextEdit area(u"a b"_s);
            SearchDialog dialog(&area);
            dialog.search_input->setText(u"a"_s);
            dialog.replace_input->setText(replacement);
            QStringList texts; // while it is running
            const Answers answers([&](QDialog *shown) {
                QPushButton *stop = nullptr;
                for (auto *button : shown->findChildren<QPushButton *>())
                    stop = button->text() == u"Stop"_s ? button : stop;
                if (stop)
                    texts.append(area.toPlainText());
                if (stop && (texts.size() == 3 || qobject_cast<QProgressDialog *>(shown)))
                    QTest::mouseClick(stop, Qt::LeftButton);
                else
                    QTest::keyClick(shown, texts.size() == 2 ? Qt::Key_Escape : Qt::Key_Return);
            });

            const QString seen = trace_of([&] { dialog.replace_all(); });
            const auto total = QRegularExpression(u"box: Replace All: Total (\\d+) matches replaced!\n$"_s).match(seen);
            QVERIFY(total.hasMatch());
            const int count = total.captured(1).toInt();
            QCOMPARE(seen.count(u"finding next..."_s), count);
            QCOMPARE(area.toPlainText().size(), 3 + count * (replacement.size() - 1));
            if (replacement == u"aa"_s)
                QCOMPARE(texts, QStringList({u"aa b"_s, u"aaa b"_s, u"aaaa b"_s}));
            else
                QVERIFY(texts.size() == 1 && texts.constFirst().size() > 3);
            area.undo();
            QCOMPARE(area.toPlainText(), u"a b"_s);
        }
    }

    void survives_deletion()
    {
        for (const QString &dies : {u"area"_s, u"window"_s, u"dialog"_s}) {
            // In the box of Return; in a box, the progress dialog and the last box of Replace All.
            for (const QString &replacement : {u""_s, u"twos"_s, u"two two"_s, u"something"_s}) {
                auto window = std::make_unique<QWidget>();
                const QPointer<QTextEdit> area = new QTextEdit(u"two b"_s, window.get());
                const QPointer<SearchDialog> dialog = new SearchDialog(area);
                const std::unique_ptr<SearchDialog, QScopedPointerDeleteLater> owner(dies == u"dialog"_s ? nullptr
                                                                                                         : dialog);
                dialog->show();
                dialog->search_input->setText(replacement.startsWith(u"two"_s) ? u"two"_s : u"nothing"_s);
                dialog->replace_input->setText(replacement);
                const Answers answers([&](QDialog *) {
                    if (dies == u"window"_s)
                        window.reset();
                    else
                        delete (dies == u"area"_s ? static_cast<QWidget *>(area) : dialog);
                });
                trace_of([&] {
                    if (replacement.isEmpty())
                        QTest::keyClick(dialog->search_input, Qt::Key_Return);
                    else
                        dialog->replace_all();
                });
                QVERIFY(dies == u"dialog"_s ? !dialog : dialog && !dialog->isVisible());
                QVERIFY(!QApplication::activeModalWidget());
                QVERIFY(!area || area->toPlainText().endsWith(u" b"_s));
            }
        }
    }

    void survives_slots()
    {
        for (const bool area_dies : {true, false}) {
            QTextDocument document(u"two b two"_s); // outlives the text area, or Qt would not survive it
            auto area = std::make_unique<QTextEdit>();
            area->setDocument(&document);
            auto dialog = std::make_unique<SearchDialog>(area.get());
            dialog->search_input->setText(u"two"_s);
            dialog->replace_input->setText(
                u"three"_s); // whose first box ends the edit block: the change is reported then
            if (area_dies)
                connect(&document, &QTextDocument::contentsChanged, this, [&] { area.reset(); });
            else
                connect(area.get(), &QTextEdit::textChanged, this, [&] { dialog.reset(); });
            const Answers answers;
            trace_of([&] { dialog->replace_all(); });
            QVERIFY(area_dies ? !area : !dialog);
        }
    }

    void edited_search_text_starts_anew()
    {
        QTextEdit area(u"cat sat cat sat"_s);
        SearchDialog dialog(&area);
        const auto find = [&](const QString &typed) {
            trace_of([&] { QTest::keyClicks(dialog.search_input, typed); });
            return area.textCursor().selectionStart();
        };
        QCOMPARE(find(u"cat\r"_s), 0);
        dialog.search_input->selectAll();
        QCOMPARE(find(u"sat\r"_s), 4);
        dialog.search_input->setText(u"cat"_s); // by a program: the search goes on
        QCOMPARE(find(u"\r"_s), 12);
    }

    void comes_and_goes_with_the_text()
    {
        QTabWidget tabs;
        auto *area = new QTextEdit(u"cat"_s);
        tabs.addTab(area, u"1"_s);
        tabs.addTab(new QTextEdit, u"2"_s);
        tabs.show();
        SearchDialog dialog(area); // on the stack: the host's
        for (const bool is_left_open : {true, false}) {
            dialog.show();
            tabs.setCurrentIndex(1);
            QVERIFY(!dialog.isVisible());
            if (!is_left_open)
                dialog.close();
            tabs.setCurrentIndex(0);
            QCOMPARE(dialog.isVisible(), is_left_open);
        }
        dialog.show();
        delete area;
        QVERIFY(!dialog.isVisible());
        dialog.search_input->setText(u"cat"_s);
        const auto use = [&] {
            dialog.find_next();
            dialog.replace_all();
            dialog.find_all_matches();
            dialog.close();
        };
        QCOMPARE(trace_of(use), QString());
    }

    void does_not_cover_the_match()
    {
        // Beside the window, and where there is no room for that, over it.
        for (const QSize &size : {QSize(300, 300), QSize(780, 600)}) {
            QTextEdit area(u"cat in a line of its own<br>"_s.repeated(40));
            area.setGeometry(QRect(QPoint(5, 5), size));
            area.show();
            SearchDialog dialog(&area);
            dialog.show();
            dialog.search_input->setText(u"cat"_s);
            for (int i = 0; i < 40; ++i) {
                trace_of([&] { dialog.find_next(); });
                const QRect match = area.cursorRect().translated(area.viewport()->mapToGlobal(QPoint()));
                QVERIFY(!dialog.frameGeometry().intersects(match));
                QVERIFY(dialog.screen()->availableGeometry().contains(dialog.frameGeometry()));
            }
            dialog.close();
        }
    }

    void marks_are_readable_on_dark()
    {
        QTextEdit area(u"a cat and a <font color=white>cat</font>"_s);
        QPalette palette(Qt::white, Qt::black);
        area.setPalette(palette);
        area.show();
        QTextEdit::ExtraSelection of_host;
        of_host.cursor = area.textCursor();
        area.setExtraSelections({of_host});
        const qsizetype helpers = area.children().size();
        const auto dark = [&] {
            area.grab();
            QStringList letters;
            const QList<QTextEdit::ExtraSelection> selections = area.extraSelections();
            for (const auto &selection : selections.mid(1))
                letters << selection.cursor.selectedText() + selection.format.foreground().color().name();
            return letters;
        };
        {
            SearchDialog dialog(&area);
            dialog.search_input->setText(u"cat"_s);
            trace_of([&] { dialog.find_all_matches(); });
            const QString html = area.toHtml();
            QCOMPARE(dark(), (QStringList{u"cat#000000"_s, u"cat#000000"_s}));
            QCOMPARE(area.toHtml(), html);
        }
        area.setPalette(QPalette());
        QCOMPARE(dark(),
                 QStringList{u"cat#000000"_s}); // the marks outlive the dialog; white is white on a light one, too
        area.setPlainText({});
        QVERIFY(dark().isEmpty() && area.extraSelections().size() == 1);
        QCOMPARE(area.children().size(), helpers); // nothing is left behind
    }
};

MY_CLASSES_TEST_MAIN(TstSearch)
#include "tst_search.moc"
