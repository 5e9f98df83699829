// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtGui/QDropEvent>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

/// The texts of the cells, row by row.
QString cells(const QTextTable *table)
{
    QStringList rows;
    for (int row = 0; table && row < table->rows(); ++row) {
        QStringList texts;
        for (int column = 0; column < table->columns(); ++column) {
            QTextCursor cursor = table->cellAt(row, column).firstCursorPosition();
            cursor.setPosition(table->cellAt(row, column).lastPosition(), QTextCursor::KeepAnchor);
            texts << cursor.selectedText();
        }
        rows << texts.join(u',');
    }
    return rows.join(u'/');
}

} // namespace

/// The editor's commands as a host reaches them.
class TstCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void actions_are_those_of_the_tool_bar()
    {
        CustomTextEditor editor({});
        QList<QAction *> in_bar = editor.toolbar->actions();
        in_bar.removeIf([](const QAction *action) { return action->isSeparator() || action->text().isEmpty(); });
        QStringList names;
        QList<QAction *> of_commands;
        for (int command = 0; command <= int(EditorCommand::RemoveColumns); ++command) {
            of_commands << editor.action(EditorCommand(command));
            names << of_commands.last()->objectName();
        }
        QCOMPARE(of_commands.mid(0, in_bar.size()), in_bar);
        QCOMPARE(of_commands.size(), in_bar.size() + 6);
        QCOMPARE(names.removeDuplicates(), 0);
        QCOMPARE(editor.findChild<QAction *>(u"bold_action"_s), editor.bold_action);
        QCOMPARE(editor.action(EditorCommand::PasteUnformatted)->objectName(), u"paste_unformatted_action"_s);

        QMenu menu;
        menu.addAction(editor.action(EditorCommand::Bold));
        editor.text_edit->setPlainText(u"word"_s);
        menu.actions().constFirst()->trigger();
        QVERIFY(editor.text_edit->fontWeight() == QFont::Bold && editor.bold_action->isChecked());

        for (const char *call : {"initUI", "add_toolbar_buttons"})
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1StringView(call)));
        editor.initUI();
        editor.add_toolbar_buttons();
        QCOMPARE(editor.findChildren<QAction *>(u"bold_action"_s).size(), 1);
    }

    void shortcuts_are_the_hosts_if_it_wants()
    {
        QWidget window;
        auto *column = new QVBoxLayout(&window);
        CustomTextEditor editor({});
        column->addWidget(&editor);
        QAction bold(u"the host's"_s);
        bold.setShortcut(u"Ctrl+B"_s);
        window.addAction(&bold);
        int triggered = 0;
        connect(&bold, &QAction::triggered, &window, [&] { ++triggered; });
        show_active(window);
        editor.set_shortcuts_enabled(false);
        editor.set_shortcuts_enabled(false);
        QVERIFY(!editor.shortcuts_enabled());
        QTest::keySequence(window.windowHandle(), u"A, Ctrl+B, B, Ctrl+Z"_s); // undoing is the text area's own
        QCOMPARE(triggered, 1);
        QVERIFY(editor.text_edit->fontWeight() != QFont::Bold);
        QCOMPARE(editor.get_text_content(), QString());
        window.removeAction(&bold);
        editor.set_shortcuts_enabled(true);
        QTest::keySequence(window.windowHandle(), u"Ctrl+B, A"_s);
        QCOMPARE(editor.text_edit->fontWeight(), int(QFont::Bold));
        QCOMPARE(editor.action(EditorCommand::Undo)->shortcuts(), QList{QKeySequence(QKeySequence::Undo)});
    }

    void rows_and_columns()
    {
        CustomTextEditor editor({});
        QTextDocument *document = editor.text_edit->document();
        QVERIFY(!editor.action(EditorCommand::RemoveRows)->isEnabled());
        QVERIFY(editor.insert_table_of_size(2, 2));
        // Another one after it was removed and brought back.
        const auto table = [&] { return qobject_cast<QTextTable *>(document->rootFrame()->childFrames().value(0)); };
        for (int cell = 0; cell < 4; ++cell)
            table()->cellAt(cell / 2, cell % 2).firstCursorPosition().insertText(QString(QChar(u'a' + cell)));
        const auto at = [&](int row, int column) { return table()->cellAt(row, column).firstPosition(); };
        const auto is_one_step = [&](EditorCommand command, const QString &after) {
            const QString before = editor.get_html_content();
            if (!editor.action(command)->isEnabled())
                return false;
            editor.action(command)->trigger();
            const bool changed = cells(editor.text_edit->textCursor().currentTable()) == after;
            editor.text_edit->undo();
            return changed && editor.get_html_content() == before;
        };
        for (const auto &[command, after] : {std::pair(EditorCommand::InsertRowAbove, u"a,b/,/c,d"_s),
                                             {EditorCommand::InsertRowBelow, u"a,b/c,d/,"_s},
                                             {EditorCommand::InsertColumnBefore, u",a,b/,c,d"_s},
                                             {EditorCommand::InsertColumnAfter, u"a,,b/c,,d"_s},
                                             {EditorCommand::RemoveRows, u"a,b"_s},
                                             {EditorCommand::RemoveColumns, u"b/d"_s}}) {
            select(editor.text_edit, at(1, 0));
            QVERIFY2(is_one_step(command, after), qPrintable(after));
        }
        select(editor.text_edit, at(0, 0), at(1, 1)); // everything
        QVERIFY(is_one_step(EditorCommand::RemoveRows, QString()));
        select(editor.text_edit, at(0, 1), at(1, 1));
        QVERIFY(is_one_step(EditorCommand::InsertColumnAfter, u"a,b,/c,d,"_s));
        select(editor.text_edit, at(1, 1));
        editor.insert_row_below();
        QCOMPARE(table()->cellAt(2, 1).format(), table()->cellAt(1, 1).format()); // looks like its neighbour
        editor.text_edit->setReadOnly(true);
        const QString before = editor.get_html_content();
        editor.remove_columns();
        QCOMPARE(editor.get_html_content(), before);
        editor.text_edit->setReadOnly(false);
        editor.text_edit->moveCursor(QTextCursor::End);
        QVERIFY(!editor.action(EditorCommand::InsertRowBelow)->isEnabled());
        editor.insert_row_below();
        QCOMPARE(editor.get_html_content(), before);

        editor.set_html_content(u"<table><tr><td colspan=2>a</td></tr><tr><td>b</td><td>c</td></tr></table>"_s);
        select(editor.text_edit, 1);
        QVERIFY(is_one_step(EditorCommand::InsertRowBelow, u"a,a/,/b,c"_s));
        editor.text_edit->redo();
        QCOMPARE(cells(table()), u"a,a/,/b,c"_s); // not as wide as the cell above
        const QString table_html = editor.get_html_content();
        select(editor.text_edit, 2, 0);
        QTest::keyClick(editor.text_edit, Qt::Key_Return); // in place of the table
        QVERIFY(!table());
        editor.text_edit->undo();
        QCOMPARE(editor.get_html_content(), table_html);

        // The table goes where the command moves the cursor.
        for (const bool row : {false, true}) {
            editor.set_text_content({});
            QVERIFY(editor.insert_table_of_size(2, 2));
            select(editor.text_edit, at(0, 0), at(1, 1));
            connect(editor.text_edit, &QTextEdit::cursorPositionChanged, document, &QTextDocument::clear,
                    Qt::SingleShotConnection);
            row ? editor.insert_row_below() : editor.remove_columns();
            QVERIFY(document->isEmpty() && !table());
        }
    }

    void tables_and_pictures_without_dialogs()
    {
        CustomTextEditor editor({});
        editor.set_text_content(u"text"_s);
        const QString before = editor.get_html_content();
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::green);
        for (const auto &[rows, columns] : {std::pair(-1, 2), {2, -1}, {0, 2147483647}, {2147483647, 0}, {1000, 1000}})
            QVERIFY(!editor.insert_table_of_size(rows, columns));
        QVERIFY(!editor.insert_picture({}) && !editor.insert_picture(picture, {100'000, 100'000}));
        editor.text_edit->setReadOnly(true);
        QVERIFY(!editor.insert_picture(picture) && !editor.insert_table_of_size(1, 1));
        QCOMPARE(editor.get_html_content(), before);
        editor.text_edit->setReadOnly(false);
        for (const QSize &size : {QSize(), QSize(20, 60)}) {
            const QSize expected = size.isValid() ? size : picture.size();
            QVERIFY(editor.insert_picture(picture, size));
            const QTextImageFormat format = editor.text_edit->currentCharFormat().toImageFormat();
            const QByteArray png = QByteArray::fromBase64(format.name().section(u',', 1).toLatin1());
            QCOMPARE(QImage::fromData(png).size(), expected);
            QCOMPARE(QSizeF(format.width(), format.height()), QSizeF(expected));
            editor.text_edit->undo();
            QCOMPARE(editor.get_html_content(), before);
        }
    }

    void tab_moves_in_tables_and_lists()
    {
        CustomTextEditor editor({});
        show_active(editor);
        QTextEdit *text = editor.text_edit;
        const auto press = [&](const QString &keys) { QTest::keySequence(editor.windowHandle(), keys); };
        text->setHtml(u"<table><tr><td>a</td><td>b</td></tr><tr><td colspan=2>c</td></tr></table>"_s);
        const auto table = [&] { return text->textCursor().currentTable(); };
        select(editor.text_edit, 1);
        press(u"Tab, X, Tab, Y"_s);
        press(u"Tab, Z, Shift+Backtab, 1"_s);
        QCOMPARE(cells(table()), u"a,xb/1yc,1yc/z,"_s); // the wide cell, seen in both columns
        QVERIFY(text->hasFocus());
        for (int i = 0; i < 3; ++i) // two letters and the new row
            text->undo();
        QCOMPARE(table()->rows(), 2);
        press(u"Shift+Backtab, Shift+Backtab, Shift+Backtab, Shift+Backtab"_s);
        QVERIFY(!text->hasFocus()); // out of the first one, to the tool bar

        text->setHtml(u"<ul><li>one</li><li>two</li><li>three</li></ul><p>end</p>"_s);
        text->setFocus();
        const QString before = editor.get_html_content();
        const auto level = [&] { return text->textCursor().currentList()->format().indent(); };
        select(editor.text_edit, 4);
        press(u"Tab"_s);
        QCOMPARE(level(), 2);
        select(editor.text_edit, 8);
        press(u"Tab"_s);
        QCOMPARE(text->textCursor().currentList()->count(), 2); // joins the item before
        press(u"Shift+Backtab"_s);
        QCOMPARE(text->textCursor().currentList()->count(), 2); // and the first one again
        text->undo();
        text->undo();
        text->undo();
        QCOMPARE(editor.get_html_content(), before);
        select(editor.text_edit, 1);
        press(u"Tab"_s);
        QVERIFY(editor.get_text_content().startsWith(u"o\tne"_s));
        text->undo();
        select(editor.text_edit, 0);
        press(u"Shift+Backtab"_s);
        QVERIFY(!text->hasFocus());
        QCOMPARE(editor.get_html_content(), before);
    }

    void pictures_are_pasted_and_dropped()
    {
        CustomTextEditor editor({});
        editor.resize(700, 600);
        show_active(editor);
        QTextEdit *text = editor.text_edit;
        editor.set_text_content(u"text"_s);
        const QString before = editor.get_html_content();
        const QTemporaryDir folder;
        QImage wide(2000, 1000, QImage::Format_RGB32);
        wide.fill(Qt::red);
        const QImage small = wide.scaled(20, 10);
        const QString files[] = {folder.filePath(u"wide.PNG"_s), folder.filePath(u"small.bmp"_s)};
        QVERIFY(wide.save(files[0], "PNG") && small.save(files[1]));
        const QUrl urls[] = {QUrl::fromLocalFile(files[0]), QUrl::fromLocalFile(files[1])};
        const auto sizes_seen = [text] {
            QList<QSizeF> sizes;
            for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
                for (auto it = block.begin(); it != block.end(); ++it) {
                    if (const QTextImageFormat image = it.fragment().charFormat().toImageFormat(); image.isValid())
                        sizes << QSizeF(image.width(), image.height());
                }
            }
            return sizes;
        };
        const auto paste = [&](QMimeData *data) {
            QApplication::clipboard()->setMimeData(data);
            text->moveCursor(QTextCursor::End);
            QTest::keySequence(editor.windowHandle(), QKeySequence::Paste);
            return sizes_seen();
        };
        const auto picture_data = [](const QImage &image, const QString &html) {
            auto *content = new QMimeData;
            content->setImageData(image);
            if (!html.isEmpty())
                content->setHtml(html);
            return content;
        };
        const auto files_data = [](const QList<QUrl> &list) {
            auto *content = new QMimeData;
            content->setUrls(list);
            return content;
        };
        const double width = text->viewport()->width() - 2 * text->document()->documentMargin();
        const QSizeF fitted(qRound(width), qRound(width / 2));
        const QString named = u"<img src='http://127.0.0.1:1/x.png'>"_s;
        for (const auto &[content, sizes] : {std::pair(picture_data(small, {}), QList<QSizeF>{small.size()}),
                                             {picture_data(wide, named), {fitted}},
                                             {files_data({urls[0], urls[1]}), {fitted, small.size()}}}) {
            QCOMPARE(paste(content), sizes);
            QVERIFY(editor.get_html_content().contains(u"data:image/png;base64,"_s));
            text->undo();
            QCOMPARE(editor.get_html_content(), before);
        }
        QCOMPARE(paste(picture_data(small, u"<b>cells</b>"_s)), {}); // text that brings a picture of itself
        QVERIFY(editor.get_text_content().endsWith(u"cells"_s));
        const std::unique_ptr<QMimeData> dragged(files_data({urls[1]}));
        QDragEnterEvent enter({60, 60}, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(text->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({60, 60}, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(text->viewport(), &drop);
        QCOMPARE(sizes_seen(), QList<QSizeF>{small.size()});
        text->setAcceptRichText(false);
        QCOMPARE(paste(picture_data(small, {})).size(), 1); // the one before

        // A picture beside the page that names it.
        text->document()->setMetaInformation(QTextDocument::DocumentUrl,
                                             urls[0].resolved(QUrl(u"page.html"_s)).toString());
        QVERIFY(QFile::copy(files[1], folder.filePath(u"page.html"_s))); // what is in it does not matter
        text->document()->setHtml(u"<img src='small.bmp'>"_s);
        const QImage seen = text->viewport()->grab().toImage();
        QCOMPARE(seen.pixelColor(QPoint(8, 8) * seen.devicePixelRatio()), QColor(Qt::red));
    }

    void forms_pass_a_parent_alone()
    {
        QWidget form;
        const auto *editor = new CustomTextEditor(&form);
        QCOMPARE(editor->parentWidget(), &form);
        const auto *tab = new CustomTab(&form);
        QCOMPARE(tab->parentWidget(), &form);
        QVERIFY(tab->lang == editor->lang && tab->editor->spellchecker && editor->spellchecker);
        QVERIFY(!CustomTextEditor(nullptr).parentWidget() && !CustomTab(nullptr).parentWidget());
        const CustomTextEditor as_ever({}, &form);
        QCOMPARE(as_ever.lang, u"en"_s);
    }

    void lines_on_standard_output_can_be_silenced()
    {
        CustomTextEditor editor({});
        const auto check = [&] { return standard_output_of([&] { editor.check_spelling(); }); };
        set_diagnostic_output(false);
        QVERIFY(!diagnostic_output());
        QCOMPARE(check(), QString());
        set_diagnostic_output(true);
        QCOMPARE(check(), u"Misspelled words: 0 []\n"_s);
    }
};

MY_CLASSES_TEST_MAIN(TstCommands)
#include "tst_commands.moc"
