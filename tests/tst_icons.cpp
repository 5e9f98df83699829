// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/app_directory.h>

#include <QtGui/QIcon>
#include <QtGui/QImage>

#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const QStringList k_names = {
    u"append2dictionary.png"_s,
    u"binoculars.png"_s,
    u"bullet-list-square.png"_s,
    u"bullet-list.png"_s,
    u"clear-formatting.png"_s,
    u"clipboard-paste-document-text.png"_s,
    u"correct-word.png"_s,
    u"document-copy.png"_s,
    u"edit-alignment-center.png"_s,
    u"edit-alignment-justify.png"_s,
    u"edit-alignment-left.png"_s,
    u"edit-alignment-right.png"_s,
    u"edit-bold.png"_s,
    u"edit-italic.png"_s,
    u"edit-underline.png"_s,
    u"image-file-add.png"_s,
    u"insert-table.png"_s,
    u"numbered-list.png"_s,
    u"paste-plain-text.png"_s,
    u"printer.png"_s,
    u"redo.png"_s,
    u"scissors.png"_s,
    u"select-all.png"_s,
    u"spell-check.png"_s,
    u"undo.png"_s,
};

QDir icon_directory()
{
    return QDir(my_classes::app_directory + QDir::separator() + u"icons"_s);
}

/// The icon as a 16-pixel tool bar draws it on a screen of that ratio.
QImage drawn(const QString &name, int ratio)
{
    const QPixmap pixmap = QIcon(icon_directory().filePath(name)).pixmap(QSize(16, 16), ratio);
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast, 1 to 21, between a tool bar and what it looks like under `ink`.
double contrast(const QColor &ink, const QColor &bar)
{
    const auto mix = [&ink](float over, float under) { return over * ink.alphaF() + under * (1 - ink.alphaF()); };
    const double seen = luminance(
        QColor::fromRgbF(mix(ink.redF(), bar.redF()), mix(ink.greenF(), bar.greenF()), mix(ink.blueF(), bar.blueF())));
    const double behind = luminance(bar);
    return (std::max(seen, behind) + 0.05) / (std::min(seen, behind) + 0.05);
}

/// How many pixels clearly differ in how much they cover.
int difference(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))) > 64;
    }
    return count;
}

} // namespace

class TstIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void directory_holds_the_tool_bar_icons_and_no_other();
    void icon_is_sharp_and_stands_out_data();
    void icon_is_sharp_and_stands_out();
    void icons_differ_in_shape();
};

void TstIcons::directory_holds_the_tool_bar_icons_and_no_other()
{
    QStringList found = icon_directory().entryList({u"*.png"_s}, QDir::Files);
    found.sort();
    QCOMPARE(found, k_names);
}

void TstIcons::icon_is_sharp_and_stands_out_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : k_names)
        QTest::newRow(qPrintable(name)) << name;
}

void TstIcons::icon_is_sharp_and_stands_out()
{
    QFETCH(QString, name);
    QCOMPARE(QImage(icon_directory().filePath(name)).size(), QSize(32, 32));
    for (const int ratio : {1, 2}) {
        const QImage image = drawn(name, ratio);
        QCOMPARE(image.size(), QSize(16, 16) * ratio);
        for (const QColor &bar : {QColor(u"#efefef"_s), QColor(u"#353535"_s)}) {
            double ink = 0;
            double clear_ink = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    const bool clear = contrast(pixel, bar) >= 3;
                    QVERIFY2(clear || pixel.alpha() < 255, qPrintable(u"%1, %2 on %3"_s.arg(x).arg(y).arg(bar.name())));
                    ink += pixel.alphaF();
                    clear_ink += clear ? pixel.alphaF() : 0;
                }
            }
            // A hairline beside the pixel grid is all soft edge: it would leave little clear ink.
            const double pixels = image.width() * image.height();
            QVERIFY2(clear_ink > 0.15 * pixels, qPrintable(u"%1 clear pixels"_s.arg(clear_ink)));
            QVERIFY2(clear_ink > 0.65 * ink, qPrintable(u"%1 of %2 clear"_s.arg(clear_ink).arg(ink)));
        }
    }
}

void TstIcons::icons_differ_in_shape()
{
    for (qsizetype i = 0; i < k_names.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            const int pixels = difference(drawn(k_names[i], 1), drawn(k_names[j], 1));
            QVERIFY2(pixels >= 10, qPrintable(u"%1 and %2: %3"_s.arg(k_names[i], k_names[j]).arg(pixels)));
        }
    }
}

MY_CLASSES_TEST_MAIN(TstIcons)
#include "tst_icons.moc"
