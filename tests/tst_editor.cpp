// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtGui/QWheelEvent>
#include <QtNetwork/QTcpServer>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

QAbstractButton *button(const CustomTextEditor &editor, const QString &text)
{
    return with_text<QAbstractButton>(editor, text);
}

struct LayoutCounter : QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::LayoutRequest;
        return false;
    }
    int count = 0;
};

} // namespace

class TstEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void toolbar_shows_everything_at_every_width()
    {
        MainWindow window;
        const CustomTextEditor &editor = *window.text_editor;
        const QToolBar *bar = editor.toolbar;
        editor.text_edit->setPlainText(u"word. "_s.repeated(200'000)); // a long statistics line
        window.show();
        const auto check = [&](int width) {
            window.resize(width, 600);
            QCoreApplication::processEvents();
            QRegion taken;
            for (QAction *action : bar->actions()) {
                const QWidget *widget = bar->widgetForAction(action);
                if (action->isSeparator())
                    continue;
                const QByteArray where = action->text().toUtf8() + " at " + QByteArray::number(width);
                QVERIFY2(action->text().isEmpty() || !action->icon().pixmap(16).isNull(), where);
                QVERIFY2(widget->isVisible() && bar->rect().contains(widget->geometry()), where);
                QVERIFY2(widget->width() >= qMin(widget->sizeHint().width(), bar->width() - 10), where);
                QVERIFY2(widget->height() >= widget->sizeHint().height(), where);
                QVERIFY2(!taken.intersects(widget->geometry()), where);
                taken += widget->geometry();
            }
            QVERIFY(bar->geometry().bottom() < editor.text_edit->geometry().top());
            QVERIFY(editor.rect().contains(button(editor, u"+"_s)->geometry()));
        };
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            window.setLayoutDirection(direction);
            for (int width = 1400; width >= 700; width -= 50)
                check(width);
            QCOMPARE(window.width(), 700);
        }
        QFont large = window.font();
        large.setPointSize(2 * large.pointSize());
        window.setFont(large);
        check(1000);

        // From right to left the statistics begin at the right.
        editor.text_edit->setPlainText(u"word"_s);
        const QImage line = editor.word_count_label->grab().toImage();
        const auto is_blank = [&](int x, int width) {
            const QImage part = line.copy(x, 0, width, line.height());
            return part == QImage(part).scaled(1, 1).scaled(part.size());
        };
        QVERIFY(is_blank(0, 10) && !is_blank(line.width() - 30, 30));
    }

    void two_editors_by_keyboard_and_mouse()
    {
        QWidget window;
        CustomTextEditor first(std::nullopt);
        CustomTextEditor second(std::nullopt);
        auto *column = new QVBoxLayout(&window);
        column->addWidget(&first);
        column->addWidget(&second);
        show_active(window);
        const auto press = [&window](const QString &keys) { QTest::keySequence(window.windowHandle(), keys); };
        for (const CustomTextEditor *editor : {&first, &second}) {
            QTextEdit *text_edit = editor->text_edit;
            text_edit->setFocus();
            QSet<QWidget *> reached;
            do {
                reached.insert(QApplication::focusWidget());
                press(u"Shift+Backtab"_s);
            } while (editor->toolbar->isAncestorOf(QApplication::focusWidget()) && reached.size() < 40);
            for (QAction *action : editor->toolbar->actions()) {
                QWidget *widget = editor->toolbar->widgetForAction(action);
                QCOMPARE(reached.contains(widget), widget->isEnabled() && !action->isSeparator());
            }
            text_edit->setFocus();
            press(u"Alt+F10, Tab, Return, Esc"_s); // the second button
            QTest::mouseClick(button(*editor, u"Italic"_s), Qt::LeftButton);
            QTest::mouseClick(button(*editor, u"+"_s), Qt::LeftButton);
            QCOMPARE(editor->zoom_label->text(), u"110%"_s);
            press(u"Tab, Ctrl+U, F8, A"_s); // nothing is selected: F8 is disabled
            QCOMPARE(text_edit->toPlainText(), u"\ta"_s);
            QVERIFY(text_edit->fontWeight() == QFont::Bold && text_edit->fontItalic() && text_edit->fontUnderline());
            press(u"Ctrl+A, F8"_s);
            QVERIFY(!text_edit->fontUnderline());
            press(u"Ctrl+Z"_s);
            QVERIFY(text_edit->fontUnderline() && editor->underline_action->isChecked());
            QSignalSpy checked(editor, &CustomTextEditor::check_spelling_done);
            press(u"F7"_s);
            QCOMPARE(checked.size(), 1);
        }
    }

    void zoom_by_buttons_host_and_wheel()
    {
        CustomTextEditor editor(QFont(u"Times new roman"_s, 20));
        editor.text_edit->setPlainText(u"line\n"_s.repeated(300));
        editor.resize(900, 900);
        show_active(editor);
        const auto clicks = [&editor](int count, const QString &sign) {
            for (int i = 0; i < count; ++i)
                button(editor, sign)->click();
            return editor.zoom_label->text() + u' ' + QString::number(editor.text_edit->font().pointSize());
        };
        QCOMPARE(clicks(11, u"+"_s), u"200% 30"_s);
        QCOMPARE(clicks(21, u"-"_s), u"0% 10"_s);
        for (const auto &[percent, points] :
             {std::pair(120, 12), {120, 14}, {125, 16}, {81, 15}, {-20, 3}, {300, 23}}) {
            editor.set_zoom_percent(percent);
            QCOMPARE(clicks(0, {}), u"%1% %2"_s.arg(percent).arg(points));
        }
        QCOMPARE(clicks(1, u"+"_s), u"300% 23"_s); // above the bound
        QCOMPARE(clicks(11, u"-"_s), u"190% 12"_s);

        const QScrollBar *bar = editor.text_edit->verticalScrollBar();
        for (const QPoint place : {QPoint(3, 3), QPoint(70, 70), QPoint(250, 250)}) { // frame, margin, text
            const auto turn = [&, in_editor = editor.text_edit->mapTo(&editor, place)](QPoint delta, auto modifiers) {
                QWidget *target = editor.childAt(in_editor);
                QWheelEvent event(target->mapFrom(&editor, in_editor), editor.mapToGlobal(in_editor), {}, delta,
                                  Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(target, &event);
                return editor.zoom_percent;
            };
            const int percent = editor.zoom_percent;
            QCOMPARE(turn({120, 0}, Qt::ControlModifier), percent - 10); // sideways: out
            QCOMPARE(turn({0, 120}, Qt::ControlModifier | Qt::ShiftModifier), percent);
            const int scrolled = bar->value();
            QCOMPARE(turn({0, -120}, Qt::NoModifier), percent);
            QVERIFY(bar->value() > scrolled);
        }
    }

    void formatting_takes_the_word()
    {
        // "|" cursor; the word that is taken stands in brackets
        for (const QString &marked :
             {u"one [t|wo] three"_s, u"one [|two] three"_s, u"[one|], two"_s, u"one,| two"_s, u"one -|-- two"_s, u"|"_s,
              u"I [don'|t] know"_s, u"I [don\u2019t|], no"_s, u"the '[quoted|]' one"_s, u"“[te|h]” ‘no’"_s,
              u"“teh” ‘[don’t|]’—teh…"_s, u"[x|]  teh  x"_s, u"x |  teh"_s, u"[est|a\u0301] bien"_s,
              u"x [\U00010437|\U00010437] y"_s, u"\u05d0\u05d1 [\u05d2|\u05d3] \u05d4"_s}) {
            const QString without_cursor = QString(marked).remove(u'|');
            const int place = int(QString(marked).remove(u'[').remove(u']').indexOf(u'|'));
            CustomTextEditor editor(std::nullopt);
            editor.text_edit->setPlainText(QString(without_cursor).remove(u'[').remove(u']'));
            select(editor.text_edit, place);
            editor.bold_action->trigger();
            QCOMPARE(editor.text_edit->textCursor().position(), place);
            QVERIFY(!editor.text_edit->textCursor().hasSelection());
            QCOMPARE(bold_in_brackets(editor.text_edit->document()), without_cursor);
            editor.text_edit->insertPlainText(u"x"_s);
            QCOMPARE(editor.text_edit->textCursor().charFormat().fontWeight(), int(QFont::Bold));
        }
    }

    void formatting_merges_and_clears()
    {
        CustomTextEditor editor(std::nullopt);
        QTextEdit *text_edit = editor.text_edit;
        const auto format_at = [text_edit](int position) {
            QTextCursor cursor(text_edit->document());
            cursor.setPosition(position + 1);
            return cursor.charFormat();
        };
        editor.set_text_content(u"ab"_s);
        text_edit->selectAll();
        editor.underline_action->trigger();
        text_edit->undo();
        QVERIFY(!text_edit->document()->isUndoAvailable());
        text_edit->redo(); // what is formatted twice in a step counts twice, and Qt wants the caret behind the end
        QCOMPARE(text_edit->textCursor().position(), 2);

        editor.set_html_content(u"<b>ab</b>cd"_s + picture_html(1, 1) + u"<a href='x'>ef</a>"_s);
        select(editor.text_edit, 1, 3);
        editor.italic_action->trigger();
        editor.set_font_size(u" 10.5 "_s);
        QVERIFY(format_at(1).fontItalic() && format_at(1).fontWeight() == QFont::Bold);
        QVERIFY(format_at(2).fontItalic() && format_at(2).fontWeight() == QFont::Normal);
        QCOMPARE(format_at(2).fontPointSize(), 10.5);
        const QString formatted = text_edit->toHtml();
        for (const QString &size : {QString(), u"12pt"_s, u"nan"_s, u"1e400"_s, u"0"_s, u"-3"_s}) {
            QTest::ignoreMessage(QtWarningMsg, "The font size is no positive number: no format applied");
            editor.set_font_size(size);
            QCOMPARE(text_edit->toHtml(), formatted);
        }

        text_edit->selectAll();
        editor.clear_formatting();
        QVERIFY(format_at(4).isImageFormat());
        for (const int position : {0, 1, 2, 3, 5, 6})
            QCOMPARE(format_at(position).propertyCount(), 0);
        text_edit->undo();
        QCOMPARE(text_edit->toHtml(), formatted);
        editor.set_html_content(
            u"<table><tr><td><b>a</b></td><td><b>b</b></td></tr><tr><td><b>c</b></td></tr></table>"_s);
        select(editor.text_edit, 1, 3); // both cells of the first row
        editor.clear_formatting();
        const QTextTable *table = text_edit->textCursor().currentTable();
        for (const auto &[row, column, weight] : {std::tuple(0, 0, 400), std::tuple(0, 1, 400), std::tuple(1, 0, 700)})
            QCOMPARE(format_at(table->cellAt(row, column).firstPosition()).fontWeight(), weight);
        editor.set_html_content(u"<table><tr><td colspan=2>a</td></tr><tr><td>b</td><td>c</td></tr></table>"_s);
        const QString wide = text_edit->toHtml();
        text_edit->selectAll();
        editor.clear_formatting();
        QCOMPARE(text_edit->toHtml(), wide);
    }

    void insertions_are_one_step()
    {
        CustomTextEditor editor(std::nullopt);
        const QTextDocument *document = editor.text_edit->document();
        const auto insert = &CustomTextEditor::insert_after_selection;
        const auto replace = &CustomTextEditor::replace_selected_text;
        editor.set_text_content(u"abc def"_s);
        for (const auto &[change, html, text] : {std::tuple(insert, u"<b>X</b>"_s, u"abc\nX def"_s),
                                                 {replace, u"<p>X</p><p>Y</p>"_s, u"X\nY def"_s},
                                                 {replace, QString(), u" def"_s}}) {
            select(editor.text_edit, 0);
            (editor.*change)(html); // nothing is selected
            QVERIFY(!document->isUndoAvailable());
            select(editor.text_edit, 3, 0);
            (editor.*change)(html);
            QCOMPARE(editor.get_text_content(), text);
            editor.text_edit->undo();
            QVERIFY(editor.get_text_content() == u"abc def"_s && !document->isUndoAvailable());
        }
    }

    void pasting_plain_text()
    {
        CustomTextEditor editor(std::nullopt);
        editor.set_html_content(u"<i>italic</i>"_s);
        select(editor.text_edit, 3);
        for (const QString &text : {u"plain"_s, QString()}) { // some programs offer HTML only
            auto *content = new QMimeData;
            content->setHtml(u"<b>rich</b>"_s);
            if (!text.isEmpty())
                content->setText(text);
            QApplication::clipboard()->setMimeData(content);
            button(editor, u"Paste Unformatted"_s)->click();
            QVERIFY(editor.text_edit->fontItalic() && editor.text_edit->fontWeight() == QFont::Normal);
            QTest::keyClicks(editor.text_edit, u"x"_s);
        }
        for (const QString &text :
             {u"itaplainxrichxlic"_s, u"itaplainxrichlic"_s, u"itaplainxlic"_s, u"itaplainlic"_s}) {
            QCOMPARE(editor.get_text_content(), text);
            editor.text_edit->undo(); // a step each
        }
    }

    void writing_area_has_the_colour_of_the_window()
    {
        QPalette dark(QColor(0x35, 0x35, 0x35));
        dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
        const QPalette light(QColor(0xef, 0xef, 0xef));
        const QPalette before = QApplication::palette();
        QPalette host; // sets nothing else
        host.setColor(QPalette::Base, Qt::yellow);
        const auto seen = [](const CustomTextEditor &editor) {
            QTextEdit *text = editor.text_edit;
            const QImage page = text->grab().toImage();
            QStringList colours{text->viewport()->palette().color(QPalette::Text).name()};
            // The text, its margin, what is around it.
            for (const QPoint place : {text->rect().center(), text->viewport()->pos() + QPoint(2, 2), QPoint(10, 200)})
                colours << page.pixelColor(place).name();
            return colours;
        };
        const auto wanted = [](const QPalette &palette) {
            const QString window = palette.color(QPalette::Window).name();
            return QStringList{palette.color(QPalette::Text).name(), window, window, window};
        };
        for (const QString &sheet : {QString(), u"QWidget { font-size: 11pt }"_s}) {
            for (const QPalette &first : {light, dark}) {
                QApplication::setPalette(first);
                qApp->setStyleSheet(sheet);
                CustomTextEditor alone({});
                MainWindow window;
                QTabWidget tabs;
                auto *page = new CustomTab;
                tabs.addTab(page, QString());
                for (CustomTextEditor *editor : {&alone, window.text_editor, page->editor}) {
                    QWidget *shown = editor->window();
                    shown->resize(900, 900);
                    show_active(*shown);
                    QCOMPARE(seen(*editor), wanted(first));
                    for (const QPalette &next : {dark, light, dark}) {
                        shown->setPalette(next);
                        // Under a style sheet Qt does not hand colours down.
                        QCOMPARE(seen(*editor), wanted(sheet.isEmpty() ? next : editor->palette()));
                    }
                    for (const QString &other : {u"QLabel { color: red }"_s, QString()}) {
                        shown->setStyleSheet(other);
                        QCOMPARE(seen(*editor), wanted(editor->palette()));
                    }
                    editor->text_edit->setPalette(host);
                    for (const QString &other : {u"QLabel { color: red }"_s, QString()}) {
                        shown->setPalette(other.isEmpty() ? dark : light);
                        shown->setStyleSheet(other);
                        QCOMPARE(seen(*editor)[1], QColor(Qt::yellow).name());
                    }
                }
            }
        }
        qApp->setStyleSheet(QString());
        QApplication::setPalette(before);
    }

    void typing_lays_no_window_out()
    {
        QTabWidget tabs;
        auto *tab = new CustomTab;
        tabs.addTab(tab, u"Tab"_s);
        tabs.resize(800, 600);
        show_active(tabs);
        QTest::keyClicks(tab->editor->text_edit, u"one wo"_s);
        QTest::qWait(50); // for what comes late
        LayoutCounter counter;
        tabs.installEventFilter(&counter);
        tab->installEventFilter(&counter);
        for (const char letter : {'r', 'd', 's'}) {
            QTest::keyClick(tab->editor->text_edit, letter);
            QCoreApplication::processEvents();
        }
        QCOMPARE(counter.count, 0);
    }

    void text_has_the_focus_unless_given_away()
    {
        const auto typed_into = [](const CustomTextEditor &editor) {
            QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
            return editor.text_edit->toPlainText();
        };
        QMainWindow window;
        auto *field = new QLineEdit;
        auto *tabs = new QTabWidget;
        QTabBar *bar = tabs->tabBar();
        window.addToolBar(QString())->addWidget(field);
        window.setCentralWidget(tabs);
        QList<CustomTextEditor *> editors;
        const auto add_page = [&](bool in_tab) {
            auto *page = in_tab ? new CustomTab : nullptr;
            editors << (page ? page->editor : new CustomTextEditor(std::nullopt, &window));
            tabs->addTab(page ? static_cast<QWidget *>(page) : editors.last(), QString::number(editors.size()));
        };
        const auto click_tab = [&](int tab) { QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center()); };
        add_page(true);
        show_active(window);
        QCOMPARE(typed_into(*editors[0]), u"x"_s); // not the first in the window, which nobody has given the focus to
        for (const bool in_tab : {true, false}) {
            add_page(in_tab);
            tabs->setCurrentIndex(tabs->count() - 1);
            QCOMPARE(typed_into(*editors.last()), u"x"_s);
        }
        click_tab(0);
        QCOMPARE(typed_into(*editors[0]), u"xx"_s);
        bar->setFocus();
        QTest::keyClick(bar, Qt::Key_Right);
        QVERIFY(tabs->currentIndex() == 1 && bar->hasFocus());
        QTest::keyClick(&window, Qt::Key_Tab);
        QCOMPARE(typed_into(*editors[1]), u"xx"_s);
        bar->setFocus();
        click_tab(2);
        QCOMPARE(typed_into(*editors[2]), u"xx"_s);
        field->setFocus();
        tabs->setCurrentIndex(0);
        QVERIFY(field->hasFocus());
        tabs->currentWidget()->setFocus();
        QVERIFY(editors[0]->text_edit->hasFocus());
        tabs->removeTab(0);
        QCOMPARE(typed_into(*editors[tabs->currentIndex() + 1]), u"xxx"_s);

        QWidget form; // the host's own field, also in a hidden window
        auto *column = new QVBoxLayout(&form);
        auto *name = new QLineEdit;
        column->addWidget(name);
        name->setFocus();
        column->addWidget(new CustomTextEditor(std::nullopt));
        show_active(form);
        QVERIFY(name->hasFocus());
    }

    void bad_input()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString own_server = u"<img src='http://127.0.0.1:%1/x.png'>"_s.arg(server.serverPort());
        const QString inputs[] = {
            u"<b><table><tr><p>ab</b><td>b<li>c</i></p>"_s,
            u"<p style='font-size:1e30pt; margin:-9e9px'>ab<table width='-5'><td colspan='-1' rowspan='9999999999'>"_s,
            u"ab\xd800"_s + QChar(0) + u"\xdc00"_s,
            u"<p>a<script>alert(1)</script><iframe src='x'>b</p><img src='/dev/zero'>"_s + own_server,
            u"<div>"_s.repeated(3000) + u"ab"_s,
            u"word then. "_s.repeated(100'000) + u"ab"_s};
        for (const QString &content : inputs) {
            const QByteArray start = content.left(50).toUtf8();
            CustomTextEditor editor(std::nullopt);
            editor.text_edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
            show_active(editor);
            editor.set_text_content(content);
            editor.grab();
            QVERIFY2(editor.get_text_content().contains(u"ab"_s), start);
            QTest::keyClicks(editor.text_edit, u"x."_s);
            QTest::keyClick(editor.text_edit, Qt::Key_End, Qt::ControlModifier);
            QTest::keyClick(editor.text_edit, Qt::Key_F7);
            QTest::keyClick(editor.text_edit, Qt::Key_Backspace);
            editor.zoom_in();
            QVERIFY2(!editor.get_html_content().isEmpty(), start);
            QCOMPARE(editor.text_edit->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        }
        QVERIFY(!server.waitForNewConnection(50)); // nothing is ever fetched
    }

    void prints_to_a_file()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(u"a.pdf"_s);
        auto editor = std::make_unique<CustomTextEditor>(std::nullopt);
        answer_next_dialog([&](QDialog *dialog) {
            dialog->findChild<QLineEdit *>(u"filename"_s)->setText(path);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        button(*editor, u"Print"_s)->click();
        QVERIFY(content_of(path).contains("/Type /Page\n") && QFile::remove(path));

        answer_next_dialog([](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        editor->print_document();
        QVERIFY(QDir(directory.path()).isEmpty());
        answer_next_dialog([&](QDialog *) { editor.reset(); });
        editor->print_document();
        QVERIFY(!editor);
    }
};

MY_CLASSES_TEST_MAIN(TstEditor)
#include "tst_editor.moc"
