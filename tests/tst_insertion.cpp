// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/image_size_input_dialog.h>
#include <my_classes/table_dimension_input_dialog.h>

#include <QtGui/QAction>
#include <QtGui/QImageReader>
#include <QtGui/QTextBlock>
#include <QtGui/QTextList>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

using namespace Qt::StringLiterals;
using my_classes::CustomTextEditor;
using my_classes::ImageSizeInputDialog;
using my_classes::TableDimensionInputDialog;

namespace {

/// An editor in a window, driven by its tool bar and by what a person types into the dialogs.
struct Editor : CustomTextEditor
{
    Editor()
        : CustomTextEditor({})
    {
        resize(900, 700);
        show();
    }

    void trigger(const QString &text)
    {
        for (QAction *action : toolbar->actions()) {
            if (action->text() == text)
                return action->trigger();
        }
        QFAIL("no such action");
    }

    void insert_table(const QString &rows, const QString &columns)
    {
        test_support::answer_next_dialog([=](QDialog *dialog) { type_sizes(dialog, rows, columns); });
        trigger(u"Insert Table"_s);
    }

    void insert_image(const QString &path, const std::function<void(QDialog *)> &answer_size)
    {
        test_support::answer_next_dialog([=](QDialog *dialog) {
            auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
            test_support::answer_next_dialog(answer_size);
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
        trigger(u"Insert Image"_s);
    }

    void insert_image(const QString &path, const QString &width, const QString &height)
    {
        insert_image(path, [=](QDialog *dialog) { type_sizes(dialog, width, height); });
    }

    /// The keyboard alone: the first field has the focus and all of its text selected.
    static void type_sizes(QDialog *dialog, const QString &first, const QString &second)
    {
        QTRY_VERIFY(dialog->isActiveWindow());
        for (const QString &text : {first, second}) {
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Delete);
            QTest::keyClicks(dialog->focusWidget(), text);
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        }
        QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
    }

    void select(int from, int to)
    {
        QTextCursor cursor = text_edit->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        text_edit->setTextCursor(cursor);
    }

    QTextImageFormat image_format() const
    {
        for (QTextBlock block = text_edit->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (const QTextCharFormat format = part.fragment().charFormat(); format.isImageFormat())
                    return format.toImageFormat();
            }
        }
        return {};
    }

    QByteArray embedded_file() const
    {
        const QString start = u"data:image/png;base64,"_s;
        const QString name = image_format().name();
        return name.startsWith(start) ? QByteArray::fromBase64(name.mid(start.size()).toLatin1()) : "no data URI";
    }

    bool is_restored_by_one_undo(const QString &before)
    {
        if (!text_edit->document()->isUndoAvailable())
            return false;
        text_edit->undo();
        return get_html_content() == before;
    }
};

QImage test_picture()
{
    QImage picture(64, 48, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgba(x / 8 * 32, y / 8 * 32, 90, x < 32 ? 255 : 0));
    }
    return picture;
}

} // namespace

class TstInsertion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void lists_data();
    void lists();
    void tables_data();
    void tables();
    void pictures_data();
    void pictures();
    void unreadable_pictures_data();
    void unreadable_pictures();
    void a_large_photograph();
    void size_dialogs();
    void editor_dies_under_a_dialog_data();
    void editor_dies_under_a_dialog();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TstInsertion::lists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QString>("outline"); // blocks as list number, style, text
    const QString numbered = u"Numbered List"_s;
    QTest::newRow("cursor splits the paragraph") << u"abcdef"_s << 3 << 3 << QStringList{numbered} << u"abc|1 -4 def"_s;
    QTest::newRow("paragraphs touched by the selection")
        << u"ab\ncd\nef"_s << 1 << 4 << QStringList{u"Bullet List Disc"_s} << u"1 -1 ab|1 -1 cd|ef"_s;
    QTest::newRow("empty document") << QString() << 0 << 0 << QStringList{u"Bullet List Square"_s} << u"|1 -3 "_s;
    QTest::newRow("again: a new list, none removed")
        << u"ab\ncd"_s << 0 << 5 << QStringList{numbered, numbered} << u"1 -4 ab|1 -4 cd"_s;
    QTest::newRow("part of a list") << u"ab\ncd"_s << 4 << 5 << QStringList{numbered} << u"ab|1 -4 cd"_s;
    QTest::newRow("cursor in a list") << u"ab"_s << 1 << 1 << QStringList{numbered, u"Bullet List Disc"_s}
                                      << u"a|1 -4 |2 -1 b"_s;
}

void TstInsertion::lists()
{
    QFETCH(QString, text);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QStringList, actions);
    Editor editor;
    editor.text_edit->setPlainText(text);
    editor.select(from, to);

    QString before;
    for (const QString &action : std::as_const(actions)) {
        before = editor.get_html_content();
        editor.trigger(action);
    }

    QStringList outline;
    QList<QTextList *> lists;
    for (QTextBlock block = editor.text_edit->document()->begin(); block.isValid(); block = block.next()) {
        QTextList *list = block.textList();
        if (list && !lists.contains(list))
            lists.append(list);
        outline << (list ? u"%1 %2 "_s.arg(lists.indexOf(list) + 1).arg(list->format().style()) : QString()) +
                       block.text();
    }
    QTEST(outline.join(u'|'), "outline");
    QVERIFY(editor.is_restored_by_one_undo(before));
}

void TstInsertion::tables_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<QSize>("size"); // invalid: the document stays as it was
    QTest::newRow("two by three") << u"2"_s << u"3"_s << QSize(3, 2);
    QTest::newRow("leading zeros, letters refused") << u"00000000000002x"_s << u"-1"_s << QSize(1, 2);
    QTest::newRow("empty rows") << u"3"_s << u"0"_s << QSize();
    QTest::newRow("no rows entered") << QString() << u"3"_s << QSize();
    QTest::newRow("no columns entered") << u"3"_s << QString() << QSize();
    QTest::newRow("more cells than can be built") << u"100000"_s << u"100000"_s << QSize();
    QTest::newRow("more rows than can be built") << u"2000000000"_s << u"0"_s << QSize();
    QTest::newRow("beyond every integer") << u"1"_s << u"99999999999999999999"_s << QSize();
}

void TstInsertion::tables()
{
    QFETCH(QString, rows);
    QFETCH(QString, columns);
    QFETCH(QSize, size);
    Editor editor;
    editor.text_edit->setPlainText(u"before selected after"_s);
    editor.select(7, 16);
    const QString before = editor.get_html_content();
    bool is_waiting = false;
    connect(
        editor.text_edit, &QTextEdit::textChanged, &editor,
        [&] { is_waiting = QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor; }, Qt::SingleShotConnection);

    editor.insert_table(rows, columns);

    QVERIFY(!QGuiApplication::overrideCursor());
    if (!size.isValid()) {
        QCOMPARE(editor.get_html_content(), before);
        QVERIFY(!editor.text_edit->document()->isUndoAvailable());
        return;
    }
    QVERIFY(is_waiting);
    const QString cell = u"<td contenteditable='true' style='border: 1px solid black; min-width: 200px; "
                         "min-height: 30px; padding: 8px;'></td>"_s;
    const QString fragment = u"\n            <table border=\"1\" style=\"border: 1px solid black; border-collapse: "
                             "collapse; width: 100%;\">\n                %1\n            </table>\n        "_s.arg(
                                 (u"<tr>"_s + cell.repeated(size.width()) + u"</tr>"_s).repeated(size.height()));
    Editor expected;
    expected.text_edit->setPlainText(u"before selected after"_s);
    expected.select(7, 16);
    expected.text_edit->textCursor().insertHtml(fragment);
    QCOMPARE(editor.get_html_content(), expected.get_html_content());
    QVERIFY(editor.is_restored_by_one_undo(before));
}

void TstInsertion::pictures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QSize>("scaled"); // invalid: the document stays as it was
    QTest::newRow("size accepted, transparent") << u"a.png"_s << u"64"_s << u"48"_s << QSize(64, 48);
    QTest::newRow("stretched") << u"a.jpg"_s << u"0320"_s << u"100"_s << QSize(320, 100);
    QTest::newRow("upper-case ending") << u"A.BMP"_s << u"7"_s << u"480"_s << QSize(7, 480);
    QTest::newRow("width emptied") << u"a.xpm"_s << QString() << u"20"_s << QSize(64, 48);
    QTest::newRow("nothing to show") << u"a.png"_s << u"0"_s << u"20"_s << QSize(0, 0);
    QTest::newRow("more pixels than can be built") << u"a.png"_s << u"100000"_s << u"100000"_s << QSize();
    QTest::newRow("longer than can be built") << u"a.png"_s << u"1"_s << u"2000000"_s << QSize();
    QTest::newRow("beyond every integer") << u"a.png"_s << u"99999999999999999999"_s << QString() << QSize();
}

void TstInsertion::pictures()
{
    QFETCH(QString, name);
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QSize, scaled);
    QVERIFY(test_picture().save(file(name)));
    const QImage original(file(name));
    QCOMPARE(original.size(), QSize(64, 48));
    Editor editor;
    editor.text_edit->setPlainText(u"text"_s);
    const QString before = editor.get_html_content();

    editor.insert_image(file(name), width, height);
    QVERIFY(QFile::remove(file(name)));

    if (!scaled.isValid()) {
        QCOMPARE(editor.get_html_content(), before);
        QVERIFY(!editor.text_edit->document()->isUndoAvailable());
        return;
    }
    Editor fresh;
    fresh.set_html_content(editor.get_html_content());
    for (const Editor *shown : {&editor, &fresh}) {
        QCOMPARE(shown->image_format().width(), width.toDouble());
        QCOMPARE(shown->image_format().height(), height.toDouble());
        const QByteArray png = shown->embedded_file();
        QVERIFY(png.isEmpty() == scaled.isNull() && png.startsWith(scaled.isNull() ? "" : "\x89PNG"));
        QCOMPARE(QImage::fromData(png).convertToFormat(QImage::Format_ARGB32),
                 (scaled.isNull() ? QImage() : original.scaled(scaled)).convertToFormat(QImage::Format_ARGB32));
        shown->text_edit->viewport()->grab();
    }
    QVERIFY(editor.is_restored_by_one_undo(before));
}

void TstInsertion::unreadable_pictures_data()
{
    QTest::addColumn<QByteArray>("contents");
    QVERIFY(test_picture().save(file(u"whole.jpg"_s)));
    QFile whole(file(u"whole.jpg"_s));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("truncated") << whole.read(whole.size() / 4);
    QTest::newRow("spoilt colours") << QByteArray("/* XPM */ static char *a[]={\"2 2 1 1\",\"x\",\"xx\",\"xx\"};");
}

void TstInsertion::unreadable_pictures()
{
    QFETCH(QByteArray, contents);
    QFile picture(file(u"bad.jpg"_s));
    QVERIFY(picture.open(QIODevice::WriteOnly) && picture.write(contents) == contents.size());
    picture.close();
    Editor editor;
    QStringList offered;
    editor.insert_image(picture.fileName(), [&](QDialog *dialog) {
        for (const QLineEdit *input : dialog->findChildren<QLineEdit *>())
            offered << input->text();
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QCOMPARE(offered, QStringList({u"0"_s, u"0"_s}));
    QCOMPARE(editor.image_format().name(), u"data:image/png;base64,"_s);
    editor.set_html_content(editor.get_html_content());
    editor.text_edit->viewport()->grab(); // a warning while painting would fail the test
}

void TstInsertion::a_large_photograph()
{
    // More than Qt's decoders take by default.
    QImage photograph(8000, 6000, QImage::Format_Grayscale8);
    photograph.fill(90);
    QVERIFY(photograph.save(file(u"large.jpg"_s)));
    const int limit = QImageReader::allocationLimit();
    Editor editor;
    QStringList offered;
    editor.insert_image(file(u"large.jpg"_s), [&](QDialog *dialog) {
        for (const QLineEdit *input : dialog->findChildren<QLineEdit *>())
            offered << input->text();
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QCOMPARE(offered, QStringList({u"8000"_s, u"6000"_s}));
    QCOMPARE(QImageReader::allocationLimit(), limit);
    editor.set_html_content(editor.get_html_content());
    const QImage seen = editor.text_edit->viewport()->grab().toImage();
    QCOMPARE(seen.pixelColor(seen.rect().center()), QColor(90, 90, 90));
}

void TstInsertion::size_dialogs()
{
    Editor editor;
    editor.move(200, 100);
    QTRY_VERIFY(editor.isActiveWindow());
    const QString before = editor.get_html_content();
    int dialogs_seen = 0;
    const auto look_and_cancel = [&](QDialog *dialog) {
        ++dialogs_seen;
        QCOMPARE(dialog->windowHandle()->transientParent(), editor.windowHandle());
        QVERIFY(editor.frameGeometry().contains(dialog->geometry()));
        const auto inputs = dialog->findChildren<QLineEdit *>();
        QTRY_VERIFY(inputs.value(0)->hasFocus());
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            QVERIFY(inputs.contains(label->buddy()));
            QCOMPARE(label->buddy()->accessibleName(), label->text());
        }
        QTest::keyClick(inputs.value(1), Qt::Key_Escape);
    };
    test_support::answer_next_dialog(look_and_cancel);
    editor.trigger(u"Insert Table"_s);
    QVERIFY(test_picture().save(file(u"a.png"_s)));
    editor.insert_image(file(u"a.png"_s), look_and_cancel);
    test_support::answer_next_dialog([](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    editor.trigger(u"Insert Image"_s);
    QCOMPARE(dialogs_seen, 2);
    QCOMPARE(editor.get_html_content(), before);

    TableDimensionInputDialog table;
    ImageSizeInputDialog image(640, 480);
    QCOMPARE(table.get_inputs(), std::pair(QString(), QString()));
    QCOMPARE(image.get_inputs(), std::pair(u"640"_s, u"480"_s));
    QSignalSpy accepted(&table, &QDialog::accepted);
    table.show();
    QTest::keyClicks(table.input1, u"1a-2"_s);
    table.input1->insert(u"\u0662"_s); // a digit, but not of ASCII
    QTest::keyClick(table.input1, Qt::Key_Return);
    QCOMPARE(table.get_inputs().first, u"12"_s);
    QCOMPARE(accepted.count(), 1);
    image.show();
    QTest::mouseClick(image.cancel_button, Qt::LeftButton);
    QVERIFY(!image.isVisible());
}

void TstInsertion::editor_dies_under_a_dialog_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("in_second_dialog");
    QTest::newRow("table") << u"Insert Table"_s << false;
    QTest::newRow("file of an image") << u"Insert Image"_s << false;
    QTest::newRow("size of an image") << u"Insert Image"_s << true;
}

void TstInsertion::editor_dies_under_a_dialog()
{
    QFETCH(QString, action);
    QFETCH(bool, in_second_dialog);
    QVERIFY(test_picture().save(file(u"a.png"_s)));
    QPointer<Editor> editor(new Editor);
    const auto kill = [&](QDialog *) { delete editor; };
    if (in_second_dialog) {
        editor->insert_image(file(u"a.png"_s), kill);
    } else {
        test_support::answer_next_dialog(kill);
        editor->trigger(action);
    }
    QVERIFY(!editor);
    QVERIFY(!QApplication::activeModalWidget());
}

MY_CLASSES_TEST_MAIN(TstInsertion)
#include "tst_insertion.moc"
