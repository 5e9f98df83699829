// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/layout_comparison.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtTest/QTest>

using my_classes::CustomTextEditor;
using test_support::LayoutComparison;

namespace {

/// An editor, and a text area of Qt with the same width.
struct Windows
{
    Windows()
        : editor(QFont(QStringLiteral("Liberation Serif"), 12))
    {
        editor.resize(800, 600);
        editor.show();
        qt.setFont(editor.editor_font);
        qt.show();
        fit();
        qt.setLineWrapMode(ours()->lineWrapMode());
    }

    QTextEdit *ours() const { return editor.text_edit; }

    void fit()
    {
        QCoreApplication::processEvents();
        qt.resize(ours()->viewport()->size() + QSize(2 * qt.frameWidth(), 2 * qt.frameWidth()));
        QCoreApplication::processEvents();
        const int missing = ours()->viewport()->width() - qt.viewport()->width();
        if (missing != 0)
            qt.resize(qt.width() + missing, qt.height());
    }

    CustomTextEditor editor;
    QTextEdit qt;
};

QByteArray layout_name(const QTextEdit *area)
{
    return area->document()->documentLayout()->metaObject()->className();
}

const QByteArray own_name("my_classes::DocumentLayout");

/// Paragraphs whose heights cannot be guessed from others.
QString uneven_html(int paragraphs)
{
    QString html;
    for (int i = 0; i < paragraphs; ++i) {
        html += QStringLiteral("<p style='font-size:%1pt;margin-top:%2px'>%3 ").arg(8 + i * 7 % 23).arg(i % 9).arg(i);
        html += QStringLiteral("some words ").repeated(1 + i * 13 % 70) + QStringLiteral("</p>");
    }
    return html;
}

int top_paragraph(QTextEdit *area)
{
    return area->cursorForPosition(QPoint(5, 1)).blockNumber();
}

} // namespace

class TestLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equals_qt_data();
    void equals_qt();
    void keeps_still_while_measuring();
    void keeps_the_top_text();
    void moves_what_is_on_the_screen();
    void gives_way_to_tables();
    void gives_the_document_back();
    void draws_factors_as_line_heights();
    void survives_edits_inside_signals();
    void takes_extreme_texts();
};

void TestLayout::equals_qt_data()
{
    QTest::addColumn<bool>("has_table");
    QTest::newRow("own") << false;
    QTest::newRow("stand-in") << true;
}

void TestLayout::equals_qt()
{
    QFETCH(bool, has_table);
    const int rounds =
        qEnvironmentVariable("MY_CLASSES_LAYOUT_ROUNDS", has_table ? QStringLiteral("100") : QStringLiteral("300"))
            .toInt();
    const int first = qEnvironmentVariableIntValue("MY_CLASSES_LAYOUT_SEED");
    constexpr int rounds_of_text = 100;
    int checks = 0;
    for (int seed = first; seed < first + (rounds + rounds_of_text - 1) / rounds_of_text; ++seed) {
        Windows windows;
        LayoutComparison comparison(windows.ours(), &windows.qt, seed);
        if (has_table)
            comparison.insert_table();
        QTRY_COMPARE(layout_name(windows.ours()), has_table ? "my_classes::StandInLayout" : own_name);
        for (int round = 0; round < rounds_of_text; ++round) {
            comparison.edit();
            if (round % 17 == 16) {
                windows.editor.resize(700 + comparison.below(500), 600);
                windows.fit();
            }
            if (round % 23 == 22) {
                const int step = comparison.below(5) - 2;
                windows.ours()->zoomIn(step);
                windows.qt.zoomIn(step);
            }
            if (windows.ours()->viewport()->width() != windows.qt.viewport()->width())
                windows.fit();
            QCoreApplication::processEvents(); // the table may have gone, or come back
            const QString difference = comparison.difference();
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("seed %1, round %2: %3").arg(seed).arg(round).arg(difference)));
        }
        checks += comparison.checks();
    }
    qInfo("%d checks", checks);
}

void TestLayout::keeps_still_while_measuring()
{
    Windows windows;
    windows.editor.set_html_content(uneven_html(3000));
    windows.qt.setHtml(uneven_html(3000));
    QScrollBar *bar = windows.ours()->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    QCoreApplication::processEvents();
    const QImage before = windows.ours()->viewport()->grab().toImage();
    const int paragraph = top_paragraph(windows.ours());
    QTRY_COMPARE_WITH_TIMEOUT(bar->maximum(), windows.qt.verticalScrollBar()->maximum(), 20000);
    const QImage after = windows.ours()->viewport()->grab().toImage();
    QCOMPARE(after, before);
    QCOMPARE(top_paragraph(windows.ours()), paragraph);

    // Upwards by the wheel through a text that is not measured.
    windows.editor.set_html_content(uneven_html(3001));
    bar->setValue(bar->maximum());
    QCoreApplication::processEvents();
    QVERIFY(windows.ours()->cursorForPosition(QPoint(5, windows.ours()->viewport()->height() - 5)).blockNumber() >
            2998);
    for (int i = 0; i < 30; ++i) {
        const QRect line = windows.ours()->cursorRect(windows.ours()->cursorForPosition(QPoint(5, 5)));
        const QTextCursor cursor = windows.ours()->cursorForPosition(QPoint(5, 5));
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCoreApplication::processEvents();
        QCOMPARE(windows.ours()->cursorRect(cursor).top() - line.top(), bar->singleStep());
    }
}

void TestLayout::keeps_the_top_text()
{
    Windows windows;
    windows.editor.set_html_content(uneven_html(500));
    QScrollBar *bar = windows.ours()->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    QCoreApplication::processEvents();
    const int paragraph = top_paragraph(windows.ours());
    for (const int width : {700, 1100, 650, 800}) {
        windows.editor.resize(width, 600);
        QCoreApplication::processEvents();
        QCOMPARE(top_paragraph(windows.ours()), paragraph);
    }
    for (const auto mode : {QTextEdit::NoWrap, QTextEdit::FixedColumnWidth, QTextEdit::WidgetWidth}) {
        windows.ours()->setLineWrapMode(mode);
        QCoreApplication::processEvents();
        QCOMPARE(top_paragraph(windows.ours()), paragraph);
        QCOMPARE(layout_name(windows.ours()), own_name);
    }
    for (int i = 0; i < 5; ++i) {
        windows.editor.zoom_in();
        QCoreApplication::processEvents();
        QCOMPARE(top_paragraph(windows.ours()), paragraph);
    }
}

void TestLayout::moves_what_is_on_the_screen()
{
    Windows windows;
    const int flash_time = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    windows.editor.set_html_content(uneven_html(500));
    QScrollBar *bar = windows.ours()->verticalScrollBar();
    for (int i = 0; i < 60; ++i) {
        bar->triggerAction(i % 3 ? QAbstractSlider::SliderSingleStepSub : QAbstractSlider::SliderSingleStepAdd);
        if (i % 11 == 5)
            bar->setValue(bar->maximum() * (i % 4) / 4);
        if (i % 7 == 3)
            windows.editor.resize(750 + i, 600);
        QCoreApplication::processEvents();
        const QRect place(windows.ours()->viewport()->mapTo(&windows.editor, QPoint()),
                          windows.ours()->viewport()->size());
        const QImage seen = windows.editor.screen()->grabWindow(windows.editor.winId()).toImage().copy(place);
        const QImage whole = windows.editor.grab(place).toImage().convertToFormat(seen.format());
        QVERIFY2(seen == whole, qPrintable(QString::number(i)));
    }
    QApplication::setCursorFlashTime(flash_time);
}

void TestLayout::gives_way_to_tables()
{
    Windows windows;
    QTextEdit *area = windows.ours();
    windows.editor.set_html_content(uneven_html(300) +
                                    QStringLiteral("<p><img src='data:image/png;base64,AAAA'>wrogn</p>"));
    windows.editor.highlighter->setMisspelled({QStringLiteral("wrogn")});
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum() / 2);
    QCoreApplication::processEvents();
    const QString top = area->cursorForPosition(QPoint(5, 1)).block().text();
    QCOMPARE(layout_name(area), own_name); // a picture's frame is not one that needs more
    for (int i = 0; i < 3; ++i) {
        QTextCursor(area->document()).insertTable(2, 2);
        QTRY_COMPARE(layout_name(area), "QTextDocumentLayout");
        QCOMPARE(area->cursorForPosition(QPoint(5, 1)).block().text(), top);
        area->document()->undo();
        QTRY_COMPARE(layout_name(area), own_name);
        QCOMPARE(area->cursorForPosition(QPoint(5, 1)).block().text(), top);
        QCOMPARE(area->document()->lastBlock().layout()->formats().size(), 1);
    }
}

void TestLayout::gives_the_document_back()
{
    QTextDocument document(QStringLiteral("first\nsecond"));
    QTextEdit other;
    other.setDocument(&document);
    other.show();
    {
        Windows windows;
        windows.ours()->setDocument(&document);
        QCoreApplication::processEvents();
        QCOMPARE(layout_name(&other), own_name);
        Windows second;
        second.ours()->setDocument(&document);
        QTest::keyClicks(second.ours(), QStringLiteral("x"));
    }
    QCOMPARE(layout_name(&other), "QTextDocumentLayout");
    QTest::keyClicks(&other, QStringLiteral("y"));
    QCOMPARE(document.toPlainText(), QStringLiteral("xyfirst\nsecond"));
}

void TestLayout::draws_factors_as_line_heights()
{
    Windows windows;
    for (QTextEdit *area : {windows.ours(), &windows.qt})
        area->setPlainText(QStringLiteral("some words ").repeated(60));
    windows.fit();
    windows.editor.set_line_spacing(1.5);
    QTextBlockFormat format;
    format.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
    QTextCursor whole(windows.qt.document());
    whole.select(QTextCursor::Document);
    whole.mergeBlockFormat(format);
    LayoutComparison comparison(windows.ours(), &windows.qt, 1);
    QCOMPARE(comparison.difference(), QString());
    QCOMPARE(windows.ours()->document()->begin().blockFormat().lineHeightType(), 150);
}

void TestLayout::survives_edits_inside_signals()
{
    Windows windows;
    QTextDocument *document = windows.ours()->document();
    windows.editor.set_text_content(QStringLiteral("one\ntwo\nthree"));
    bool is_busy = false;
    const auto edit = [&] {
        if (std::exchange(is_busy, true))
            return;
        QTextCursor(document).insertText(QStringLiteral("a\nb"));
        windows.ours()->setLineWrapMode(QTextEdit::LineWrapMode(document->blockCount() % 4));
        windows.ours()->viewport()->repaint();
        windows.ours()->cursorRect();
        if (document->blockCount() % 3 == 0)
            document->undo();
        QCoreApplication::processEvents();
        is_busy = false;
    };
    connect(document, &QTextDocument::contentsChange, this, edit);
    connect(document, &QTextDocument::contentsChanged, this, edit);
    connect(document, &QTextDocument::blockCountChanged, this, edit);
    connect(windows.ours(), &QTextEdit::cursorPositionChanged, this, edit);
    connect(windows.ours()->verticalScrollBar(), &QScrollBar::rangeChanged, this, edit);
    connect(document->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this, edit);
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(windows.ours(), i % 2 ? Qt::Key_X : Qt::Key_Return);
        if (i % 10 == 5)
            windows.ours()->textCursor().insertTable(1, 1);
        if (i == 20)
            windows.editor.set_line_spacing(1.5);
    }
    document->disconnect(this);
    windows.ours()->disconnect(this);
    windows.ours()->setLineWrapMode(QTextEdit::WidgetWidth);
    QTest::qWait(100); // for a switch of the layout that could not be done at once
    windows.editor.clear_formatting();
    windows.editor.set_text_content(windows.editor.get_text_content());
    windows.qt.setPlainText(windows.editor.get_text_content());
    windows.fit();
    QCOMPARE(LayoutComparison(windows.ours(), &windows.qt, 1).geometry(), QString());
}

void TestLayout::takes_extreme_texts()
{
    Windows windows;
    for (const QString &text : {QStringLiteral("word ").repeated(50'000), QString(200'000, u'\n'), QString()}) {
        windows.editor.set_text_content(text);
        windows.qt.setPlainText(text);
        for (QTextEdit *area : {windows.ours(), &windows.qt}) {
            area->moveCursor(QTextCursor::End);
            QTest::keyClicks(area, QStringLiteral("x"));
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE_WITH_TIMEOUT(windows.ours()->verticalScrollBar()->maximum(),
                                  windows.qt.verticalScrollBar()->maximum(), 20000);
        const auto place = [](const QTextEdit *area) {
            return area->cursorRect().translated(0, area->verticalScrollBar()->value());
        };
        QCOMPARE(place(windows.ours()), place(&windows.qt));
        QVERIFY(windows.ours()->viewport()->rect().contains(windows.ours()->cursorRect()));
    }
}

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
