// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/app_directory.h>

#include <QtGui/QIcon>
#include <QtGui/QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QStringList k_names =
    u"append2dictionary binoculars bullet-list-square bullet-list clear-formatting clipboard-paste-document-text "
    "correct-word document-copy edit-alignment-center edit-alignment-justify edit-alignment-left edit-alignment-right "
    "edit-bold edit-italic edit-underline image-file-add insert-table numbered-list paste-plain-text printer redo "
    "scissors select-all spell-check undo"_s.split(u' ');

QDir icon_directory()
{
    return QDir(my_classes::app_directory + u"/icons"_s);
}

/// The icon as a 16-pixel tool bar draws it on a screen of that ratio.
QImage drawn(const QString &name, int ratio)
{
    QImage image = QIcon(icon_directory().filePath(name + u".png"_s)).pixmap(QSize(16, 16), ratio).toImage();
    image.setDevicePixelRatio(1);
    return image.convertToFormat(QImage::Format_ARGB32);
}

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

class TstIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void icons_are_sharp_and_stand_out();
    void icons_differ_in_shape();
};

void TstIcons::icons_are_sharp_and_stand_out()
{
    QStringList files = icon_directory().entryList({u"*.png"_s}, QDir::Files);
    files.sort();
    QCOMPARE(files, QStringList(k_names).replaceInStrings(QRegularExpression(u"$"_s), u".png"_s));
    for (const QString &name : k_names) {
        for (const int ratio : {1, 2}) {
            const QImage image = drawn(name, ratio);
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

void TstIcons::icons_differ_in_shape()
{
    for (const QString &name : k_names) {
        const QImage image = drawn(name, 1);
        for (const QString &other_name : k_names.mid(k_names.indexOf(name) + 1)) {
            const QImage other = drawn(other_name, 1);
            int pixels = 0; // that clearly differ in how much they cover
            for (int i = 0; i < 16 * 16; ++i)
                pixels += std::abs(qAlpha(image.pixel(i % 16, i / 16)) - qAlpha(other.pixel(i % 16, i / 16))) > 64;
            QVERIFY2(pixels >= 10, qPrintable(u"%1 and %2: %3"_s.arg(name, other_name).arg(pixels)));
        }
    }
}

MY_CLASSES_TEST_MAIN(TstIcons)
#include "tst_icons.moc"
