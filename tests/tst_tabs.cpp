// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtGui/QShortcut>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

class TstTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fail_on_warnings();
        m_window = std::make_unique<QMainWindow>();
        m_tabs = new EditableTabWidget;
        m_window->setCentralWidget(m_tabs);
        for (const QString &name : {u"Notas"_s, u"Intro"_s, u"<b>Fin</b>"_s})
            m_tabs->addTab(new QTextEdit, name);
        m_window->resize(700, 400);
        show_active(*m_window);
    }

    void cleanup() { m_window.reset(); }

    void rename()
    {
        const std::tuple<QString, QString, QString> rows[] = {
            // What is typed, the title then, and the error that keeps the field open.
            {u"  notas \r"_s, u"notas"_s, {}}, // trimmed; another case is another title
            {u"Intro\r"_s, u"Intro"_s, {}},
            {u"Uno\x1b"_s, u"Intro"_s, {}},
            {u"   \r"_s, u"Intro"_s, u"El título de la pestaña no puede estar vacío."_s},
            {u"Notas\r"_s, u"Intro"_s, u"El título de la pestaña ya existe. Por favor, elige otro título."_s}};
        for (const auto &[typed, title_then, error] : rows) {
            init();
            QTest::mouseClick(m_tabs->tabBar(), Qt::LeftButton, {}, title(1));
            m_tabs->tabBar()->setFocus();
            QTest::keyClick(m_tabs->tabBar(), Qt::Key_F2);
            QPointer<QLineEdit> field(m_tabs->line_edit);
            QVERIFY(field && field->hasFocus());
            QTest::keyClicks(field, typed); // over the selected title
            QCOMPARE(m_tabs->tabText(1), title_then);
            QCOMPARE(m_window->statusBar()->currentMessage(), error);
            if (!error.isEmpty()) {
                QCOMPARE(field->accessibleDescription(), error);
                QVERIFY(m_tabs->line_edit == field && field->hasFocus());
                field->selectAll();
                QTest::keyClicks(field, u"Libre\r"_s);
                QCOMPARE(m_tabs->tabText(1), u"Libre");
                QCOMPARE(m_window->statusBar()->currentMessage(), QString());
            }
            QVERIFY(!m_tabs->line_edit);
            QTRY_VERIFY(!field);
            QVERIFY(m_tabs->tabBar()->hasFocus());
        }
    }

    void leaving_the_field()
    {
        double_click(1);
        const QPointer<QLineEdit> field(m_tabs->line_edit);
        QTest::keyClicks(field, u"Notas\r"_s);
        QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(field, &wanted);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        QCOMPARE(m_tabs->line_edit, field.data()); // its own menu is no other place
        QTRY_VERIFY(field->hasFocus());

        QTest::mouseClick(qobject_cast<QTextEdit *>(m_tabs->currentWidget())->viewport(), Qt::LeftButton);
        QVERIFY(!m_tabs->line_edit);
        QTRY_VERIFY(!field);
        QCOMPARE(m_tabs->tabText(1), u"Intro");
        QCOMPARE(m_window->statusBar()->currentMessage(), QString());
    }

    void second_field_and_a_deleted_tab()
    {
        m_tabs->widget(0)->setFocus();
        double_click(0);
        const QPointer<QLineEdit> first(m_tabs->line_edit);
        double_click(2);
        QVERIFY(first && m_tabs->line_edit != first);
        first->selectAll();
        QTest::keyClicks(first, u"Uno\r"_s); // its own text, to its own tab
        QTRY_VERIFY(!first);
        delete m_tabs->widget(2);
        QVERIFY(!m_tabs->line_edit);
        QCOMPARE(titles(), (QStringList{u"Uno"_s, u"Intro"_s}));
        QVERIFY(m_tabs->currentWidget()->hasFocus());
    }

    void keys_go_to_what_is_visible()
    {
        m_tabs->widget(0)->setFocus();
        double_click(0);
        QTest::mouseClick(m_tabs->tabBar(), Qt::LeftButton, {}, title(1));
        QTest::keyClick(m_tabs->line_edit, Qt::Key_Escape);
        QTest::keyClicks(QApplication::focusWidget(), u"seen"_s);
        QCOMPARE(qobject_cast<QTextEdit *>(m_tabs->widget(1))->toPlainText(), u"seen");

        double_click(1);
        QWidget other;
        other.show();
        other.activateWindow(); // another window abandons the rename
        QTRY_VERIFY(!m_tabs->line_edit);
        m_window->activateWindow();
        QTRY_COMPARE(QApplication::focusWidget(), m_tabs->widget(1));
    }

    void field_follows_its_page()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            init();
            m_window->setLayoutDirection(direction);
            const QTabBar *bar = m_tabs->tabBar();
            const auto lies_over = [&](int index) {
                return m_tabs->line_edit->geometry() == bar->tabRect(index).translated(bar->mapTo(m_tabs, QPoint()));
            };
            QTRY_COMPARE(bar->x() > 0, direction == Qt::RightToLeft);
            double_click(0);
            QVERIFY(lies_over(0));
            m_window->resize(900, 400);
            QTRY_VERIFY(lies_over(0));
            m_tabs->tabBar()->moveTab(0, 2);
            m_tabs->insertTab(0, new QTextEdit, u"Nueva"_s);
            QTRY_VERIFY(lies_over(3));
            QTest::keyClicks(m_tabs->line_edit, u"Mia\r"_s);
            QCOMPARE(titles(), (QStringList{u"Nueva"_s, u"Intro"_s, u"<b>Fin</b>"_s, u"Mia"_s}));
        }
    }

    void field_in_a_dialog()
    {
        QDialog dialog;
        QPushButton button(&dialog);
        button.setDefault(true);
        auto *tabs = new EditableTabWidget(&dialog);
        tabs->addTab(new QTextEdit, u"Uno"_s);
        tabs->move(0, 50);
        QShortcut shortcut(Qt::Key_Return, &dialog);
        QSignalSpy pressed(&button, &QPushButton::clicked);
        QSignalSpy heard(&shortcut, &QShortcut::activated);
        connect(tabs, &EditableTabWidget::tab_renamed, &dialog, [&] { delete std::exchange(tabs, nullptr); });
        show_active(dialog);
        tabs->editTabTitle(0);
        QTest::keyClicks(tabs->line_edit, u" \r"_s); // refused without a status bar
        QVERIFY(tabs->line_edit && tabs->tabText(0) == u"Uno");
        QTest::keyClicks(tabs->line_edit, u"Dos\r"_s);
        QVERIFY(!tabs);
        QCOMPARE(pressed.size() + heard.size(), 0);
    }

    void refused_title_in_hostile_company()
    {
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        m_tabs->setPalette(dark);
        bool deletes = false;
        QColor colour;
        connect(m_window->statusBar(), &QStatusBar::messageChanged, this, [&](const QString &message) {
            if (message.isEmpty())
                return;
            colour = m_tabs->line_edit->palette().text().color();
            if (deletes)
                return delete std::exchange(m_tabs, nullptr);
            answer_next_dialog([](QDialog *box) { box->accept(); });
            QMessageBox(QMessageBox::Warning, {}, message).exec();
        });
        m_tabs->editTabTitle(0);
        QTest::keyClicks(m_tabs->line_edit, u" \r"_s);
        QVERIFY(!m_tabs->line_edit); // the box took the focus
        QCOMPARE(m_window->statusBar()->currentMessage(), QString());
        QVERIFY(colour.red() == 255 && colour.lightness() > 180);

        deletes = true;
        m_tabs->editTabTitle(0);
        QTest::keyClicks(m_tabs->line_edit, u" \r"_s);
        QVERIFY(!m_tabs);
    }

    void drag_is_reported()
    {
        // Qt may report a drag in several steps; followed one by one they give the order.
        QStringList followed = titles();
        connect(m_tabs, &EditableTabWidget::tab_moved, this, [&](int from, int to) { followed.move(from, to); });
        QTabBar *bar = m_tabs->tabBar();
        // Through the window: a mouse move given to a widget carries no button.
        const QPoint start = bar->mapTo(m_window.get(), title(0));
        const QPoint end = start + QPoint(bar->tabRect(2).right() - bar->tabRect(0).right() - 5, 0);
        QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, {}, start);
        QTest::mouseMove(m_window->windowHandle(), end);
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, end);
        QCOMPARE(titles(), (QStringList{u"Intro"_s, u"<b>Fin</b>"_s, u"Notas"_s}));
        QCOMPARE(followed, titles());
        bar->moveTab(0, 2);
        QCOMPARE(followed, titles());
    }

    void close_asks()
    {
        QSignalSpy deleted(m_tabs, &EditableTabWidget::tab_deleted);
        const std::unique_ptr<QWidget> page(m_tabs->widget(2)); // stays the host's
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QCOMPARE(deleted.size(), 0);
            QString question;
            answer_next_dialog([&](QDialog *dialog) {
                auto *box = qobject_cast<QMessageBox *>(dialog);
                if (box->textFormat() == Qt::PlainText)
                    question = box->text();
                m_tabs->tabBar()->moveTab(2, 0); // the host has other things to do meanwhile
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            });
            QTest::mouseClick(m_tabs->tabBar()->tabButton(2, QTabBar::RightSide), Qt::LeftButton);
            QCOMPARE(question, u"Confirm delete '<b>Fin</b>'?\n\n"
                               "Note: this action becomes permanent after document save.");
            QCOMPARE(m_tabs->indexOf(page.get()), answer == QMessageBox::Yes ? -1 : 0);
            m_tabs->tabBar()->moveTab(0, 2);
        }
        QCOMPARE(deleted.size(), 1);
        QCOMPARE(deleted[0][0].toString(), u"<b>Fin</b>");
    }

    void close_question_of_the_host()
    {
        const QPointer<QWidget> page = m_tabs->widget(1);
        QStringList heard;
        connect(m_tabs, &EditableTabWidget::tab_removed, this, [&](QWidget *removed, const QString &title) {
            heard << u"removed "_s + title;
            QCOMPARE(removed, page.data());
            delete removed;
        });
        connect(m_tabs, &EditableTabWidget::tab_deleted, this,
                [&](const QString &title) { heard << u"deleted "_s + title; });
        bool answer = false;
        m_tabs->set_close_question([&](QWidget *asked, const QString &title) {
            heard << u"asked "_s + title;
            return answer && asked == page;
        });
        m_tabs->closeTab(1);
        answer = true;
        m_tabs->closeTab(1);
        QCOMPARE(heard, (QStringList{u"asked Intro"_s, u"asked Intro"_s, u"removed Intro"_s, u"deleted Intro"_s}));
        QVERIFY(!page);

        const auto token = std::make_shared<int>(7);
        int seen = 0;
        m_tabs->set_close_question([this, token, &seen](QWidget *, const QString &) {
            m_window.reset();
            seen = *token;
            return true;
        });
        m_tabs->closeTab(0);
        QCOMPARE(seen, 7);
    }

    void titles_by_call()
    {
        QSignalSpy renamed(m_tabs, &EditableTabWidget::tab_renamed);
        QCOMPARE(m_tabs->unique_title(u" Nueva "_s), u"Nueva");
        for (const auto &[index, refused] : {std::pair(1, u" Notas"_s), {1, u"  "_s}, {3, u"Nueva"_s}})
            QVERIFY(!m_tabs->rename_tab(index, refused));
        QVERIFY(m_tabs->rename_tab(1, u"Intro "_s) && renamed.isEmpty()); // its own
        QVERIFY(m_tabs->rename_tab(1, u" Notas 2"_s));
        QCOMPARE(m_tabs->unique_title(u"Notas"_s), u"Notas 3");
        double_click(1);
        QTest::keyClicks(m_tabs->line_edit, u"Fin\r"_s);
        QCOMPARE(renamed.size(), 2);
        QCOMPARE(renamed[1], (QVariantList{QVariant::fromValue(m_tabs->widget(1)), u"Notas 2"_s, u"Fin"_s}));
    }

    void deleted_while_asking()
    {
        answer_next_dialog([this](QDialog *) { m_window.reset(); });
        m_tabs->closeTab(0);
        QVERIFY(!m_window);
        init();
        answer_next_dialog([this](QDialog *) { m_window.reset(); });
        QCOMPARE(m_tabs->msgbox_confirm(u"?"_s), QMessageBox::No);
        QVERIFY(!m_window);
    }

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

MY_CLASSES_TEST_MAIN(TstTabs)
#include "tst_tabs.moc"
