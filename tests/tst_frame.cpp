// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/app_directory.h>
#include <my_classes/my_msgboxes.h>
#include <my_classes/my_utils.h>

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

class TstFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }

    void application_directory();
    void question_answers_data();
    void question_answers();
    void question_is_plain_text();
    void question_outlives_its_parent();
};

void TstFrame::application_directory()
{
    // Beside the library in the build tree, and fixed whatever comes later.
    QVERIFY(QDir::isAbsolutePath(my_classes::app_directory));
    QVERIFY(QDir(my_classes::app_directory).exists(u"icons"_s));
    QCOMPARE(my_utils::get_app_directory(), my_classes::app_directory);

    const auto unset = qScopeGuard([] { qunsetenv("MY_CLASSES_APP_DIRECTORY"); });
    qputenv("MY_CLASSES_APP_DIRECTORY", "/nowhere/ä b/");
    QCOMPARE(my_utils::get_app_directory(), u"/nowhere/ä b"_s);
    qputenv("MY_CLASSES_APP_DIRECTORY", "pictures/../data");
    QCOMPARE(my_utils::get_app_directory(), QDir::current().filePath(u"data"_s));
    qputenv("MY_CLASSES_APP_DIRECTORY", "");
    QCOMPARE(my_utils::get_app_directory(), my_classes::app_directory);
}

void TstFrame::question_answers_data()
{
    using Answer = std::function<void(QDialog *)>;
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QMessageBox::StandardButton>("expected");

    const auto key = [](Qt::Key pressed) { return Answer([pressed](QDialog *box) { QTest::keyClick(box, pressed); }); };
    const auto click = [](QMessageBox::StandardButton which) {
        return Answer([which](QDialog *box) {
            QTest::mouseClick(qobject_cast<QMessageBox *>(box)->button(which), Qt::LeftButton);
        });
    };
    QTest::newRow("Yes") << click(QMessageBox::Yes) << QMessageBox::Yes;
    QTest::newRow("No") << click(QMessageBox::No) << QMessageBox::No;
    QTest::newRow("Return takes the default") << key(Qt::Key_Return) << QMessageBox::No;
    QTest::newRow("Escape") << key(Qt::Key_Escape) << QMessageBox::No;
    QTest::newRow("closed") << Answer([](QDialog *box) { box->close(); }) << QMessageBox::No;
}

void TstFrame::question_answers()
{
    QFETCH(const std::function<void(QDialog *)>, answer);
    QFETCH(const QMessageBox::StandardButton, expected);

    QWidget parent;
    parent.show();
    test_support::answer_next_dialog(answer);
    QCOMPARE(my_msgboxes::confirm_warning_yes_no(&parent, u"Title"_s, u"Sure?"_s), expected);
    QVERIFY(parent.findChildren<QDialog *>().isEmpty()); // the box does not stay behind, hidden
}

void TstFrame::question_is_plain_text()
{
    test_support::answer_next_dialog([](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box);
        const auto close = qScopeGuard([box] { box->close(); });
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box->windowTitle(), u"Title"_s);
        QCOMPARE(box->text(), u"Delete <b>A & B</b>?"_s);
        const auto *label = box->findChild<QLabel *>(u"qt_msgbox_label"_s);
        QVERIFY(label);
        QCOMPARE(label->textFormat(), Qt::PlainText);
    });
    QCOMPARE(my_msgboxes::confirm_warning_yes_no(nullptr, u"Title"_s, u"Delete <b>A & B</b>?"_s), QMessageBox::No);
}

void TstFrame::question_outlives_its_parent()
{
    auto *parent = new QWidget;
    parent->show();
    test_support::answer_next_dialog([parent](QDialog *) { delete parent; });
    QCOMPARE(my_msgboxes::confirm_warning_yes_no(parent, u"Title"_s, u"Sure?"_s), QMessageBox::No);
}

MY_CLASSES_TEST_MAIN(TstFrame)

#include "tst_frame.moc"
