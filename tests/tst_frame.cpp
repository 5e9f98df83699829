// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/app_directory.h>
#include <my_classes/my_msgboxes.h>
#include <my_classes/my_utils.h>

#include <QtCore/QScopeGuard>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

class TstFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void application_directory();
    void question_answers();
};

void TstFrame::application_directory()
{
    QVERIFY(QDir::isAbsolutePath(my_classes::app_directory));
    QVERIFY(QDir(my_classes::app_directory).exists(u"icons"_s));
    const auto unset = qScopeGuard([] { qunsetenv("MY_CLASSES_APP_DIRECTORY"); });
    qputenv("MY_CLASSES_APP_DIRECTORY", "/nowhere/ä b/");
    QCOMPARE(my_utils::get_app_directory(), u"/nowhere/ä b"_s);
    qputenv("MY_CLASSES_APP_DIRECTORY", "pictures/../data");
    QCOMPARE(my_utils::get_app_directory(), QDir::current().filePath(u"data"_s));
    qputenv("MY_CLASSES_APP_DIRECTORY", "");
    QCOMPARE(my_utils::get_app_directory(), my_classes::app_directory);
}

void TstFrame::question_answers()
{
    const std::pair<std::function<void(QMessageBox *)>, QMessageBox::StandardButton> answers[] = {
        {[](QMessageBox *box) { QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton); }, QMessageBox::Yes},
        {[](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); }, QMessageBox::No},
        {[](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); }, QMessageBox::No},
    };
    QWidget parent;
    parent.show();
    for (const auto &[answer, expected] : answers) {
        test_support::answer_next_dialog([answer = answer](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            answer(box); // first: a failure must not leave it open
            QCOMPARE(box->icon(), QMessageBox::Warning);
            QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
            QCOMPARE(box->windowTitle() + u": "_s + box->text(), u"Title: Delete <b>A & B</b>?"_s);
            QCOMPARE(box->textFormat(), Qt::PlainText);
        });
        QCOMPARE(my_msgboxes::confirm_warning_yes_no(&parent, u"Title"_s, u"Delete <b>A & B</b>?"_s), expected);
        QVERIFY(parent.findChildren<QDialog *>().isEmpty()); // the box does not stay behind, hidden
    }
}

MY_CLASSES_TEST_MAIN(TstFrame)
#include "tst_frame.moc"
