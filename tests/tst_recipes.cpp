// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recipes.h"
#include "support/test_support.h"

#include <QtGui/QTextFrame>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrintPreviewWidget>
#include <QtWidgets/QFontComboBox>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

/// What each recipe is for, done as a person would.
class TstRecipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void suggestions_in_context_menu()
    {
        CustomTextEditor editor(std::nullopt);
        recipes::mark_while_writing(&editor);
        editor.show();
        QTest::keyClicks(editor.text_edit, u"A Drak night"_s);
        QTRY_VERIFY(!editor.text_edit->document()->firstBlock().layout()->formats().isEmpty());
        select(editor.text_edit, 4);
        const QPoint point = editor.text_edit->cursorRect().center();
        const std::unique_ptr<QMenu> menu(recipes::context_menu(&editor, point));
        with_text<QAction>(*menu, u"Dark"_s)->trigger();
        QCOMPARE(editor.get_text_content(), u"A Dark night"_s);

        recipes::use_context_menu(&editor);
        Q_EMIT editor.text_edit->customContextMenuRequested(point);
        QTRY_VERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
        QApplication::activePopupWidget()->close();
    }

    void font_boxes()
    {
        CustomTextEditor editor(std::nullopt);
        editor.set_text_content(u"word"_s);
        editor.text_edit->selectAll();
        recipes::enable_font_boxes(&editor);
        QVERIFY(editor.font_combo->isEnabled());
        Q_EMIT editor.font_size_combo->textActivated(u"20"_s);
        QCOMPARE(editor.text_edit->textCursor().charFormat().fontPointSize(), 20.0);
    }

    void pdf_and_preview()
    {
        CustomTextEditor editor(std::nullopt);
        editor.set_text_content(u"A page"_s);
        QTemporaryDir directory;
        QVERIFY(recipes::save_pdf(&editor, directory.filePath(u"a.pdf"_s), u"Title"_s));
        QVERIFY(content_of(directory.filePath(u"a.pdf"_s)).startsWith("%PDF"));
        QVERIFY(!recipes::save_pdf(&editor, directory.filePath(u"none/a.pdf"_s), {}));

        recipes::show_print_preview(&editor);
        auto *preview = editor.findChild<QPrintPreviewDialog *>();
        QVERIFY(preview);
        QTRY_COMPARE(preview->findChild<QPrintPreviewWidget *>()->pageCount(), 1);
        preview->close();
    }

    void find_and_reopen()
    {
        QMainWindow window;
        auto *tabs = new EditableTabWidget;
        window.setCentralWidget(tabs);
        auto *tab = new CustomTab;
        tabs->addTab(tab, u"Chapter"_s);
        recipes::find_by_ctrl_f(&window, tabs);
        recipes::reopen_closed_tab(&window, tabs);
        window.show();
        QApplication::setActiveWindow(&window);
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(tab->editor->search_dialog);
        tab->editor->search_dialog->close();

        tabs->set_close_question([](QWidget *, const QString &) { return true; });
        tabs->closeTab(0);
        QCOMPARE(tabs->count(), 0);
        QApplication::setActiveWindow(&window);
        QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(tabs->widget(0), tab);
        QCOMPARE(tabs->tabText(0), u"Chapter"_s);
    }

    void other_close_question()
    {
        EditableTabWidget tabs;
        auto *tab = new CustomTab;
        const std::unique_ptr<QWidget> empty(new CustomTab);
        tabs.addTab(tab, u"Written"_s);
        tabs.addTab(empty.get(), u"Empty"_s);
        tab->set_text_content(u"text"_s);
        recipes::ask_in_own_words(&tabs);
        tabs.closeTab(1);
        QCOMPARE(tabs.count(), 1);
        answer_next_dialog([](QDialog *box) {
            QCOMPARE(qobject_cast<QMessageBox *>(box)->text(), u"Close \"Written\" for good?"_s);
            box->reject();
        });
        tabs.closeTab(0);
        QCOMPARE(tabs.count(), 1);
    }

    void margins_and_autosave()
    {
        CustomTextEditor editor(std::nullopt);
        recipes::set_margins(&editor, 30);
        QCOMPARE(editor.text_edit->document()->rootFrame()->frameFormat().leftMargin(), 30.0);

        QTemporaryDir directory;
        const QString path = directory.filePath(u"draft.html"_s);
        recipes::save_by_itself(&editor, path, 10);
        QTest::keyClicks(editor.text_edit, u"Draft"_s);
        QVERIFY(editor.is_modified());
        QTRY_VERIFY(!editor.is_modified());
        QVERIFY(content_of(path).contains("Draft"));
    }

    void find_bar()
    {
        QMainWindow window;
        auto *editor = new CustomTextEditor(&window);
        window.setCentralWidget(editor);
        editor->set_text_content(u"one two one"_s);
        QLineEdit *field = recipes::add_find_bar(&window, editor);
        field->setText(u"one"_s);
        for (const int start : {0, 8, 0}) {
            QTest::keyClick(field, Qt::Key_Return);
            QCOMPARE(editor->text_edit->textCursor().selectionStart(), start);
        }
    }

    void editor_in_dialog()
    {
        const std::unique_ptr<QDialog> dialog(recipes::dialog_with_editor(nullptr));
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
        auto *editor = dialog->findChild<CustomTextEditor *>();
        QTest::keyClicks(editor->text_edit, u"one"_s);
        QTest::keyClick(editor->text_edit, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QCOMPARE(editor->get_text_content(), u"one\n"_s);
        QTest::keyClick(editor->text_edit, Qt::Key_Return, Qt::ControlModifier);
        QTRY_COMPARE(dialog->result(), int(QDialog::Accepted));
    }

    void languages()
    {
        const std::unique_ptr<QWidget> window(recipes::two_languages(u"en"_s, u"tlh"_s));
        const auto editors = window->findChildren<CustomTextEditor *>();
        QCOMPARE(editors.size(), 2);
        QVERIFY(editors[0]->is_misspelled(u"drak"_s));
        QCOMPARE(editors[1]->lang, QString());
        QVERIFY(!editors[1]->is_misspelled(u"drak"_s));
    }
};

MY_CLASSES_TEST_MAIN(TstRecipes)
#include "tst_recipes.moc"
