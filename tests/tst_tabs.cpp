// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/custom_tab.h>
#include <my_classes/custom_text_editor.h>
#include <my_classes/editable_tab_widget.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTextEdit>

using namespace my_classes;
using namespace Qt::StringLiterals;

namespace {

const auto k_empty = u"El título de la pestaña no puede estar vacío."_s;
const auto k_taken = u"El título de la pestaña ya existe. Por favor, elige otro título."_s;

} // namespace

class TstTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void rename_data();
    void rename();
    void clicking_elsewhere_abandons();
    void context_menu_does_not_abandon();
    void keyboard_only();
    void second_field_forgets_the_first();
    void field_survives_its_tab();
    void without_main_window();
    void drag_is_reported();
    void close_asks_data();
    void close_asks();
    void deleted_while_asking();

    void tab_forwards_to_its_editor();
    void tab_font();

private:
    QPoint title(int index) const { return m_tabs->tabBar()->tabRect(index).center() - QPoint(10, 0); }
    void double_click(int index) const
    {
        QTest::mouseClick(m_tabs->tabBar(), Qt::LeftButton, {}, title(index));
        QTest::mouseDClick(m_tabs->tabBar(), Qt::LeftButton, {}, title(index));
    }
    QStringList titles() const
    {
        QStringList list;
        for (int i = 0; i < m_tabs->count(); ++i)
            list << m_tabs->tabText(i);
        return list;
    }

    std::unique_ptr<QMainWindow> m_window;
    EditableTabWidget *m_tabs = nullptr;
};

void TstTabs::init()
{
    test_support::fail_on_warnings();
    m_window = std::make_unique<QMainWindow>();
    m_tabs = new EditableTabWidget;
    m_window->setCentralWidget(m_tabs);
    for (const QString &name : {u"Notas"_s, u"Intro"_s, u"<b>Fin</b>"_s})
        m_tabs->addTab(new QTextEdit, name);
    m_window->resize(700, 400);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TstTabs::rename_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("error"); // empty: the field closes
    QTest::newRow("trimmed") << u"  Uno dos  "_s << Qt::Key_Return << u"Uno dos"_s << QString();
    QTest::newRow("its own title") << u"Intro"_s << Qt::Key_Return << u"Intro"_s << QString();
    QTest::newRow("differs in case") << u"notas"_s << Qt::Key_Return << u"notas"_s << QString();
    QTest::newRow("Escape") << u"Uno"_s << Qt::Key_Escape << u"Intro"_s << QString();
    QTest::newRow("blanks") << u"   "_s << Qt::Key_Return << u"Intro"_s << k_empty;
    QTest::newRow("taken") << u"Notas"_s << Qt::Key_Enter << u"Intro"_s << k_taken;
}

void TstTabs::rename()
{
    QFETCH(QString, typed);
    QFETCH(QString, error);
    m_tabs->currentWidget()->setFocus();
    double_click(1);
    QPointer<QLineEdit> field(m_tabs->line_edit);
    QVERIFY(field && field->hasFocus());
    QCOMPARE(field->selectedText(), u"Intro");
    QCOMPARE(field->geometry(), m_tabs->tabBar()->tabRect(1));
    QTest::keyClicks(field, typed);
    QFETCH(Qt::Key, key);
    QTest::keyClick(field, key);
    QTEST(m_tabs->tabText(1), "title");
    if (!error.isEmpty()) {
        QCOMPARE(m_window->statusBar()->currentMessage(), error);
        QCOMPARE(field->styleSheet(), u"color: red;");
        QCOMPARE(field->accessibleDescription(), error);
        QVERIFY(m_tabs->line_edit == field && field->hasFocus());
        QCOMPARE(field->text(), typed);
        field->setText(u"Libre"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(m_tabs->tabText(1), u"Libre");
        QCOMPARE(m_window->statusBar()->currentMessage(), QString());
    }
    QVERIFY(!m_tabs->line_edit);
    QTRY_VERIFY(!field);
    QVERIFY(m_tabs->currentWidget()->hasFocus());
}

void TstTabs::clicking_elsewhere_abandons()
{
    double_click(1);
    QTest::keyClicks(m_tabs->line_edit, u"Notas"_s);
    QTest::keyClick(m_tabs->line_edit, Qt::Key_Return);
    const QPointer<QLineEdit> field(m_tabs->line_edit);
    QTest::mouseClick(qobject_cast<QTextEdit *>(m_tabs->currentWidget())->viewport(), Qt::LeftButton);
    QVERIFY(!m_tabs->line_edit);
    QTRY_VERIFY(!field);
    QCOMPARE(m_tabs->tabText(1), u"Intro");
    QCOMPARE(m_window->statusBar()->currentMessage(), k_taken); // neither shown nor cleared
}

void TstTabs::context_menu_does_not_abandon()
{
    double_click(0);
    QLineEdit *field = m_tabs->line_edit;
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(field, &wanted);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    QCOMPARE(m_tabs->line_edit, field);
    QTRY_VERIFY(field->hasFocus());
}

void TstTabs::keyboard_only()
{
    m_tabs->tabBar()->setFocus();
    QTest::keyClick(m_tabs->tabBar(), Qt::Key_Right);
    QTest::keyClick(m_tabs->tabBar(), Qt::Key_F2);
    QVERIFY(m_tabs->line_edit);
    QTest::keyClicks(m_tabs->line_edit, u"Dos"_s);
    QTest::keyClick(m_tabs->line_edit, Qt::Key_Return);
    QCOMPARE(titles(), (QStringList{u"Notas"_s, u"Dos"_s, u"<b>Fin</b>"_s}));
    QVERIFY(m_tabs->tabBar()->hasFocus());
}

void TstTabs::second_field_forgets_the_first()
{
    double_click(0);
    const QPointer<QLineEdit> first(m_tabs->line_edit);
    double_click(1);
    QVERIFY(m_tabs->line_edit && m_tabs->line_edit != first);
    QTest::qWait(0);
    QVERIFY(first && first->isVisible());
    QTest::keyClick(first, Qt::Key_Escape);
    QTRY_VERIFY(!first);
    QVERIFY(m_tabs->line_edit);
}

void TstTabs::field_survives_its_tab()
{
    double_click(2);
    delete m_tabs->widget(2);
    QTest::keyClicks(m_tabs->line_edit, u"Nada"_s);
    QTest::keyClick(m_tabs->line_edit, Qt::Key_Return);
    QVERIFY(!m_tabs->line_edit);
    QCOMPARE(titles(), (QStringList{u"Notas"_s, u"Intro"_s}));
}

void TstTabs::without_main_window()
{
    m_tabs->setParent(nullptr);
    m_tabs->show();
    m_tabs->editTabTitle(0);
    m_tabs->line_edit->setText(u"Intro"_s);
    QTest::keyClick(m_tabs->line_edit, Qt::Key_Return);
    QCOMPARE(m_tabs->line_edit->styleSheet(), u"color: red;");
    m_tabs->line_edit->setText(u"Uno"_s);
    QTest::keyClick(m_tabs->line_edit, Qt::Key_Return);
    QCOMPARE(m_tabs->tabText(0), u"Uno");
    delete m_tabs;
}

void TstTabs::drag_is_reported()
{
    // Qt may report a drag in several steps; followed one by one they give the order.
    QStringList followed = titles();
    connect(m_tabs, &EditableTabWidget::tab_moved, this, [&](int from, int to) { followed.move(from, to); });
    QTabBar *bar = m_tabs->tabBar();
    const int distance = bar->tabRect(2).right() - bar->tabRect(0).right() - 5;
    // Through the window: a mouse move given to a widget carries no button.
    const QPoint start = bar->mapTo(m_window.get(), title(0));
    const QPoint end = start + QPoint(distance, 0);
    QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(m_window->windowHandle(), end);
    QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, end);
    QCOMPARE(titles(), (QStringList{u"Intro"_s, u"<b>Fin</b>"_s, u"Notas"_s}));
    QCOMPARE(followed, titles());

    QSignalSpy moved(m_tabs, &EditableTabWidget::tab_moved);
    bar->moveTab(0, 2);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(moved[0], (QVariantList{0, 2}));
}

void TstTabs::close_asks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("yes") << QMessageBox::Yes;
    QTest::newRow("no") << QMessageBox::No;
}

void TstTabs::close_asks()
{
    QFETCH(QMessageBox::StandardButton, answer);
    QSignalSpy deleted(m_tabs, &EditableTabWidget::tab_deleted);
    const QPointer<QWidget> page = m_tabs->widget(2);
    QString question;
    Qt::TextFormat format = Qt::AutoText;
    test_support::answer_next_dialog([&](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        question = box->windowTitle() + u": "_s + box->text();
        format = box->textFormat();
        m_tabs->tabBar()->moveTab(2, 0); // the host has other things to do meanwhile
        QTest::mouseClick(box->button(answer), Qt::LeftButton);
    });
    QWidget *button = m_tabs->tabBar()->tabButton(2, QTabBar::RightSide);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(question, u"Document Section Deletion: Confirm delete '<b>Fin</b>'?\n\n"
                       "Note: this action becomes permanent after document save.");
    QCOMPARE(format, Qt::PlainText);
    const bool confirmed = answer == QMessageBox::Yes;
    QCOMPARE(m_tabs->indexOf(page), confirmed ? -1 : 0);
    QVERIFY(page);
    QCOMPARE(deleted.size(), confirmed ? 1 : 0);
    if (confirmed) {
        QCOMPARE(deleted[0][0].toString(), u"<b>Fin</b>");
        delete page;
    }
}

void TstTabs::deleted_while_asking()
{
    for (const auto &ask : {std::function<void()>([this] { m_tabs->closeTab(0); }),
                            std::function<void()>([this] { m_tabs->msgbox_confirm(u"?"_s); })}) {
        init();
        test_support::answer_next_dialog([this](QDialog *) { m_window.reset(); });
        ask();
        QVERIFY(!m_window);
    }
}

void TstTabs::tab_forwards_to_its_editor()
{
    CustomTab tab;
    QCOMPARE(tab.editor->lang, u"en");
    QSignalSpy changed(&tab, &CustomTab::text_changed);
    QSignalSpy edited(tab.editor->text_edit, &QTextEdit::textChanged);
    tab.set_text_content(u"one two"_s);
    QTest::keyClicks(tab.editor->text_edit, u"ab"_s);
    QVERIFY(edited.size() >= 3);
    QCOMPARE(changed.size(), edited.size());
    QCOMPARE(changed.last()[0].toString(), u"Text changed");
    tab.set_html_content(u"<b>one</b> two"_s);
    QCOMPARE(tab.get_text_content(), u"one two");
    QTextCursor cursor = tab.editor->text_edit->textCursor();
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    tab.editor->text_edit->setTextCursor(cursor);
    QCOMPARE(tab.get_selected_text(), u"one");
    tab.replace_selected_text(u"six"_s);
    QCOMPARE(tab.get_text_content(), u"six two");
    tab.editor->text_edit->selectAll();
    tab.insert_after_selection(u"end"_s);
    QCOMPARE(tab.get_text_content(), u"six two\nend");
    QCOMPARE(tab.get_html_content(), tab.editor->get_html_content());
}

void TstTabs::tab_font()
{
    const CustomTab plain;
    const CustomTab arial(u"Arial"_s, 15);
    QCOMPARE(arial.editor->editor_font, QFont(u"Arial"_s, 15));
    QVERIFY(plain.editor->editor_font != arial.editor->editor_font);
}

MY_CLASSES_TEST_MAIN(TstTabs)
#include "tst_tabs.moc"
