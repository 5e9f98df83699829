// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtGui/QIcon>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast, 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    return (std::max(luminance(a), luminance(b)) + 0.05) / (std::min(luminance(a), luminance(b)) + 0.05);
}

} // namespace

class TstFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void application_directory()
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

    void question_answers()
    {
        const std::pair<std::function<void(QMessageBox *)>, QMessageBox::StandardButton> answers[] = {
            {[](QMessageBox *box) { QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton); },
             QMessageBox::Yes},
            {[](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); }, QMessageBox::No},
            {[](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); }, QMessageBox::No},
        };
        QWidget parent;
        parent.show();
        for (const auto &[answer, expected] : answers) {
            answer_next_dialog([answer = answer](QDialog *dialog) {
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

    void icons_are_sharp_and_stand_out()
    {
        const QDir icons(my_classes::app_directory + u"/icons"_s); // drawn as in a 16-pixel tool bar
        const QStringList files = icons.entryList({u"*.png"_s}, QDir::Files);
        QCOMPARE(files.size(), 25);
        for (const QString &name : files) {
            for (const int ratio : {1, 2}) {
                QImage image = QIcon(icons.filePath(name)).pixmap(QSize(16, 16), ratio).toImage();
                image.setDevicePixelRatio(1);
                image.convertTo(QImage::Format_ARGB32);
                QCOMPARE(image.size(), QSize(16, 16) * ratio);
                for (const QColor &bar : {QColor(0xefefef), QColor(0x353535)}) {
                    QImage seen(image.size(), QImage::Format_RGBX64);
                    seen.fill(bar);
                    QPainter(&seen).drawImage(0, 0, image);
                    double ink = 0;
                    double clear_ink = 0;
                    for (int i = 0; i < image.width() * image.height(); ++i) {
                        const QPoint at(i % image.width(), i / image.width());
                        const double alpha = image.pixelColor(at).alphaF();
                        const bool clear = contrast(seen.pixelColor(at), bar) >= 3;
                        QVERIFY2(clear || alpha < 1, qPrintable(u"%1 on %2"_s.arg(name, bar.name())));
                        ink += alpha;
                        clear_ink += clear ? alpha : 0;
                    }
                    // A hairline beside the pixel grid is all soft edge: it would leave little clear ink.
                    QVERIFY2(clear_ink > 0.15 * image.width() * image.height() && clear_ink > 0.65 * ink,
                             qPrintable(u"%1 on %2: %3 of %4 clear"_s.arg(name, bar.name()).arg(clear_ink).arg(ink)));
                }
            }
        }
    }
};

MY_CLASSES_TEST_MAIN(TstFrame)
#include "tst_frame.moc"
