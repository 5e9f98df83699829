// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;
using Answer = std::function<void(QDialog *)>;

namespace {

/// Types into a size dialog by keyboard alone: its first field has the focus, all of its text selected.
Answer sizes(const QString &first, const QString &second)
{
    return [=](QDialog *dialog) {
        QTRY_VERIFY(dialog->isActiveWindow());
        for (const QString &text : {first, second}) {
            auto *field = qobject_cast<QLineEdit *>(dialog->focusWidget());
            QTest::keyClick(field, Qt::Key_Delete);
            QTest::keyClicks(field, text);
            field->insert(u"\u0662"_s); // a digit, but none of ASCII
            QTest::keyClick(field, Qt::Key_Tab);
        }
        QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
        QVERIFY(dialog->windowHandle()->transientParent());
    };
}

/// Accepts the sizes that the dialog offers.
void accept(QDialog *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

Answer choose(const QString &path)
{
    return [=](QDialog *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    };
}

void answer_dialogs(const QList<Answer> &answers)
{
    if (!answers.isEmpty())
        answer_next_dialog([=](QDialog *dialog) {
            answer_dialogs(answers.mid(1));
            answers.constFirst()(dialog);
        });
}

/// An editor in a window, driven by its tool bar.
struct Editor : CustomTextEditor
{
    explicit Editor(const QString &text = {}, int from = 0, int to = 0)
        : CustomTextEditor({})
    {
        text_edit->setPlainText(text);
        select(text_edit, from, to);
        resize(900, 700);
        show();
    }

    /// Triggers an action; its dialogs, one after the other, are answered.
    void trigger(const QString &text, const QList<Answer> &answers = {})
    {
        answer_dialogs(answers);
        with_text<QAction>(*this, text)->trigger();
    }

    QTextImageFormat image() const
    {
        for (const QTextFormat &format : text_edit->document()->allFormats()) {
            if (format.isImageFormat())
                return format.toImageFormat();
        }
        return {};
    }

    /// Whether exactly one undoable change was made to `before`, or none.
    bool has_undone(const QString &before, bool is_changed = true)
    {
        const bool can_undo = text_edit->document()->isUndoAvailable();
        text_edit->undo();
        return can_undo == is_changed && get_html_content() == before;
    }
};

} // namespace

class TstInsertion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QImage picture(64, 48, QImage::Format_ARGB32); // coloured squares, the right half transparent
        for (int i = 0; i < 64 * 48; ++i)
            picture.setPixel(i % 64, i / 64, qRgba(i % 64 / 8 * 32, i / 512 * 32, 90, i % 64 < 32 ? 255 : 0));
        for (const QString &name : {u"a.png"_s, u"a.jpg"_s, u"a.xpm"_s})
            QVERIFY(picture.save(file(name)));
        const auto write = [this](const QString &name, const QByteArray &contents) {
            QFile bad(file(name));
            QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write(contents) == contents.size());
        };
        const QByteArray whole = content_of(file(u"a.jpg"_s));
        write(u"truncated.jpg"_s, whole.left(whole.size() / 4));
        write(u"empty.jpg"_s, {});
        write(u"spoilt.jpg"_s, "/* XPM */ static char *a[]={\"2 2 1 1\",\"x\",\"xx\",\"xx\"};");
    }

    void init() { fail_on_warnings(); }

    void lists()
    {
        const QString numbered = u"Numbered List"_s;
        const QString disc = u"Bullet List Disc"_s;
        const std::tuple<QString, int, int, QStringList, QString> rows[] = {
            {u"abcdef"_s, 3, 3, {numbered}, u"abc\n\n1.  def\n"_s}, // the cursor splits the paragraph
            {u"ab\ncd\nef"_s, 1, 4, {disc}, u"- ab\n- cd\n\nef\n\n"_s},
            {u""_s, 0, 0, {u"Bullet List Square"_s}, u"+ \n"_s},
            {u"ab"_s, 1, 1, {numbered, disc}, u"a\n\n1.  \n- b\n"_s}, // in a list
        };
        for (const auto &[text, from, to, actions, markdown] : rows) {
            Editor editor(text, from, to);
            QString before;
            for (const QString &action : actions) {
                before = editor.get_html_content();
                editor.trigger(action);
            }
            QCOMPARE(editor.text_edit->toMarkdown(), markdown);
            QVERIFY(editor.has_undone(before));
        }
    }

    void tables()
    {
        const QString cell = u"<td contenteditable='true' style='border: 1px solid black; min-width: 200px; "
                             "min-height: 30px; padding: 8px;'></td>"_s;
        const QString html =
            u"\n            <table border=\"1\" style=\"border: 1px solid black; border-collapse: collapse; "
            "width: 100%;\">\n                %1\n            </table>\n        "_s;
        const std::tuple<QString, QString, QSize> tables[] = {
            {u"2"_s, u"3"_s, {3, 2}},
            {u"00000000000002x"_s, u"-1"_s, {1, 2}}, // no letters
            {u""_s, u"3"_s, {}},                     // and the document stays as it was
            {u"100000"_s, u"100000"_s, {}},
            {u"2000000000"_s, u"0"_s, {}},
            {u"1"_s, u"99999999999999999999"_s, {}},
        };
        for (const auto &[rows, columns, cells] : tables) {
            Editor editor(u"before selected after"_s, 7, 16);
            const QString before = editor.get_html_content();
            editor.trigger(u"Insert Table"_s, {sizes(rows, columns)});
            QVERIFY(!QGuiApplication::overrideCursor());
            Editor expected(u"before selected after"_s, 7, 16);
            if (cells.isValid())
                expected.text_edit->textCursor().insertHtml(
                    html.arg(QString(u"<tr>"_s + cell.repeated(cells.width()) + u"</tr>"_s).repeated(cells.height())));
            QCOMPARE(editor.get_html_content(), expected.get_html_content());
            QVERIFY(editor.has_undone(before, cells.isValid()));
        }
    }

    /// Whatever the colours, a table without text is seen: its lines are black in the document.
    void tables_on_dark_paper()
    {
        for (const QColor &paper : {QColor(0x20, 0x20, 0x20), QColor(Qt::white)}) {
            CustomTextEditor editor({});
            QPalette palette(paper);
            palette.setColor(QPalette::Text, paper.lightness() < 128 ? Qt::white : Qt::black);
            editor.setPalette(palette);
            editor.resize(600, 500);
            editor.insert_table_of_size(2, 2);
            const QImage seen = editor.text_edit->viewport()->grab().toImage();
            int lines = 0;
            for (int y = 0; y < seen.height(); ++y)
                lines += qAbs(qGray(seen.pixel(20, y)) - qGray(paper.rgb())) > 100;
            QVERIFY2(lines >= 3, qPrintable(QString::number(lines)));
        }
    }

    void pictures()
    {
        const std::tuple<QString, QString, QString, QSize> rows[] = {
            {u"a.png"_s, u"64"_s, u"48"_s, {64, 48}},   {u"a.jpg"_s, u"0320"_s, u"100"_s, {320, 100}},
            {u"a.xpm"_s, u""_s, u"20"_s, {64, 48}},     {u"a.png"_s, u"0"_s, u"20"_s, {0, 0}}, // nothing to show
            {u"truncated.jpg"_s, {}, {}, {0, 0}},                                              // as offered: 0 by 0
            {u"empty.jpg"_s, {}, {}, {0, 0}},           {u"spoilt.jpg"_s, {}, {}, {0, 0}},
            {u"a.png"_s, u"100000"_s, u"100000"_s, {}}, // and the document stays as it was
            {u"a.png"_s, u"1"_s, u"2000000"_s, {}},     {u"a.png"_s, u"99999999999999999999"_s, {}, {}},
        };
        const auto drawn = [](const Editor &shown) {
            QImage page(800, 600, QImage::Format_RGB32);
            page.fill(Qt::white);
            QPainter painter(&page);
            shown.text_edit->document()->drawContents(&painter);
            return page;
        };
        for (const auto &[name, width, height, scaled] : rows) {
            Editor editor(u"text"_s);
            const QString before = editor.get_html_content();

            const Answer answer = width.isNull() ? accept : sizes(width, height);
            editor.trigger(u"Insert Image"_s, {choose(file(name)), answer});
            if (!scaled.isValid()) {
                QVERIFY(editor.has_undone(before, false));
                continue;
            }
            QCOMPARE(editor.image().width(), width.toDouble());
            QCOMPARE(editor.image().height(), height.toDouble());
            const QByteArray source = editor.image().name().toLatin1();
            QVERIFY(source.startsWith("data:image/png;base64,"));
            const QImage embedded =
                QImage::fromData(QByteArray::fromBase64(source.mid(source.indexOf(',') + 1)), "PNG");
            const QImage expected = scaled.isEmpty() ? QImage() : QImage(file(name)).scaled(scaled);
            QCOMPARE(embedded.convertToFormat(QImage::Format_ARGB32), expected.convertToFormat(QImage::Format_ARGB32));
            Editor fresh;
            fresh.set_html_content(editor.get_html_content());
            QCOMPARE(fresh.get_html_content(), editor.get_html_content());
            QCOMPARE(drawn(fresh), drawn(editor));
            QVERIFY(editor.has_undone(before));
        }
    }

    void a_large_photograph()
    {
        QImage photograph(8000, 6000, QImage::Format_Grayscale8); // more than Qt's decoders take by default
        photograph.fill(90);
        QVERIFY(photograph.save(file(u"large.jpg"_s)));
        Editor editor;
        editor.trigger(u"Insert Image"_s, {choose(file(u"large.jpg"_s)), accept});
        QCOMPARE(editor.image().width(), 8000);
        editor.set_html_content(editor.get_html_content());
        const QImage seen = editor.text_edit->viewport()->grab().toImage();
        QCOMPARE(seen.pixelColor(seen.rect().center()), QColor(90, 90, 90));
    }

    void dialogs_are_left()
    {
        for (const bool dies : {false, true}) { // by Escape, or the editor is deleted
            QPointer<Editor> editor;
            const Answer leave = [&](QDialog *dialog) {
                if (dies)
                    delete editor;
                else
                    QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Escape);
            };
            const auto try_it = [&](const QString &action, const QList<Answer> &answers) {
                editor = new Editor;
                const QString before = editor->get_html_content();
                editor->trigger(action, answers);
                QVERIFY(!QApplication::activeModalWidget());
                QVERIFY(dies ? !editor : editor->has_undone(before, false));
                delete editor;
            };
            try_it(u"Insert Table"_s, {leave});
            try_it(u"Insert Image"_s, {leave});
            try_it(u"Insert Image"_s, {choose(file(u"a.png"_s)), leave});
        }
    }

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

MY_CLASSES_TEST_MAIN(TstInsertion)
#include "tst_insertion.moc"
