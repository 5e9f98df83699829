// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// What persons and hosts do, in any order. MY_CLASSES_SEED and MY_CLASSES_OPERATIONS in the environment choose another
// walk and a longer one, MY_CLASSES_ONLY some operations of it by their numbers; a failure tells the seed and the last
// operations.

#include "support/http_server.h"
#include "support/spelling_support.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

struct Operation
{
    const char *name;
    std::function<void()> run;
};

struct Walk
{
    int seed = qEnvironmentVariableIntValue("MY_CLASSES_SEED");
    int length = std::max(qEnvironmentVariableIntValue("MY_CLASSES_OPERATIONS"), 300);
    QRandomGenerator random;

    /// Takes one of `operations` at a time, and looks at `fault` after each.
    void go(const std::vector<Operation> &operations, const std::function<QString()> &fault)
    {
        QStringList done;
        const QStringList only = qEnvironmentVariable("MY_CLASSES_ONLY").split(u',', Qt::SkipEmptyParts);
        for (int i = 0; i < length; ++i) {
            random.seed(quint32(seed) * 1'000'003u + quint32(i)); // each by itself, so that others can be left out
            if (!only.isEmpty() && !only.contains(QString::number(i)))
                continue;
            const Operation &next = operations[std::size_t(random.bounded(int(operations.size())))];
            done.append(QString::fromLatin1(next.name));
            next.run();
            QCoreApplication::processEvents();
            const QString found = fault();
            QVERIFY2(found.isEmpty() && !QTest::currentTestFailed(),
                     qPrintable(u"seed %1, operation %2, after %3:\n%4"_s.arg(seed).arg(i).arg(
                         done.mid(std::max<qsizetype>(0, done.size() - 12)).join(u", "_s), found)));
        }
    }
};

void answer_every_box()
{
    auto *answers = new QTimer(qApp);
    QObject::connect(answers, &QTimer::timeout, answers, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(box->standardButtons() & QMessageBox::Yes ? QMessageBox::Yes : QMessageBox::Ok)->click();
    });
    answers->start(1);
}

QString expected_label(const CustomTextEditor &editor)
{
    const QString selected = editor.text_edit->textCursor().selectedText();
    const QString text = selected.isEmpty() ? editor.text_edit->toPlainText() : selected;
    int words = 0; // by hand: a selection may split a surrogate pair, over which an expression fails
    for (qsizetype i = 0; i < text.size(); ++i)
        words += !text[i].isSpace() && (i == 0 || text[i - 1].isSpace()) ? 1 : 0;
    qsizetype sentences = 0;
    for (const QString &piece : QString(text).replace(u'!', u'.').replace(u'?', u'.').split(u'.'))
        sentences += piece.trimmed().isEmpty() ? 0 : 1;
    if (words == 0)
        return {};
    const QString lang = editor.lang.isEmpty() ? QString() : u"Lang: %1 | "_s.arg(editor.lang.toUpper());
    const auto number = [](qsizetype count) { return QLocale(QLocale::English).toString(qlonglong(count)); };
    return u"%1%2%3 sentences | %4 words | %5 characters"_s.arg(lang, selected.isEmpty() ? QString() : u"Selected: "_s,
                                                                number(sentences), number(words),
                                                                number(text.toUcs4().size()));
}

QString underline_fault(const CustomTextEditor &editor)
{
    for (QTextBlock block = editor.text_edit->document()->begin(); block.isValid(); block = block.next()) {
        if (underlines(block) != plain_underlines(block.text(), editor.highlighter->misspelled))
            return u"\"%1\" is underlined as \"%2\""_s.arg(block.text(), underlines(block));
    }
    return {};
}

/// What does not hold of `editor`; empty if all does.
QString editor_fault(const CustomTextEditor &editor)
{
    const QString label = editor.word_count_label->text();
    const QTextCursor cursor = editor.text_edit->textCursor();
    if (label != expected_label(editor))
        return u"the label reads \"%1\", not \"%2\""_s.arg(label, expected_label(editor));
    if (editor.clear_formatting_action->isEnabled() == cursor.selectedText().isEmpty())
        return u"clearing the format is enabled wrongly"_s;
    if (editor.action(EditorCommand::RemoveRows)->isEnabled() != bool(cursor.currentTable()))
        return u"removing rows is enabled wrongly"_s;
    return editor.is_marking_while_writing() ? QString() : underline_fault(editor); // else a moment later
}

/// From where on two texts differ, which may be too long for a message.
QString difference(const QString &found, const QString &expected)
{
    const auto place = std::mismatch(found.begin(), found.end(), expected.begin(), expected.end()).first;
    const qsizetype from = std::max<qsizetype>(0, place - found.begin() - 150);
    return u" gave\n%1\nfor\n%2"_s.arg(found.mid(from, 400), expected.mid(from, 400));
}

/// Undoing everything and doing it again gives what was there.
QString history_fault(const CustomTextEditor &editor)
{
    QTextDocument *document = editor.text_edit->document();
    const auto redo_all = [&] {
        for (int i = 0; document->isRedoAvailable() && i < 10'000; ++i)
            editor.text_edit->redo();
        return editor.get_html_content();
    };
    const QString before = redo_all();
    for (int i = 0; document->isUndoAvailable() && i < 10'000; ++i)
        editor.text_edit->undo();
    const QString after = redo_all();
    return after == before ? QString() : u"undoing and redoing everything"_s + difference(after, before);
}

} // namespace

class TstRandomOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }
    void editor_and_search();
    void tabs();
    void downloads();
};

void TstRandomOperations::editor_and_search()
{
    Walk walk;
    QRandomGenerator &random = walk.random;
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    editor.resize(800, 500);
    editor.show();
    QTextEdit *text = editor.text_edit;
    answer_every_box();

    const auto any = [&random](const QStringList &list) { return list[random.bounded(list.size())]; };
    const QStringList words =
        u"teh cat|wrod. |A house! |don't|\u00e9t\u00e9 |\U0001f600|\u05e9\u05dc\u05d5\u05dd |x|\xd83d|\xde00|...|a\u2028b! "_s
            .split(u'|')
        << u"p. \n"_s.repeated(70); // more paragraphs than the first room for their counts
    const QStringList html = {
        u"<p align=center>One <b>bold</b> wrod</p>"_s,
        u"<ul><li>a<li>b</ul><p>c"_s,
        u"<table border=1><tr><td>teh<td>2</table>"_s,
        u"<table border=1><tr><td colspan=2>teh<tr><td>a<td>b</table>x"_s,
        u"<hr><h2>Title</h2>text"_s,
        u"<p style='line-height:150%'>a<br>b</p><img src='data:image/png;base64,AAAA' width=20 height=9>"_s,
        QString(),
    };
    const auto document = [text] { return text->document(); };
    const auto position = [&] { return random.bounded(document()->characterCount()); };
    QString fault;
    QString saved; // what the document was when it was not modified
    const auto load = [&](const QString &content) {
        editor.set_html_content(content);
        saved = editor.get_text_content();
    };
    const auto save = [&] {
        editor.set_modified(false);
        saved = editor.get_text_content();
    };
    const auto compare = [&](const QString &after, const QString &what) {
        if (document()->firstBlock().textList()) // whose own character format, which items have, Qt does not undo
            return;
        if (const QString found = editor.get_html_content(); fault.isEmpty() && found != after)
            fault = what + difference(found, after);
    };
    /// One undo takes `change` back.
    const auto step = [&](const std::function<void()> &change) {
        return [&, change] {
            const QString before = editor.get_html_content();
            change();
            const QString after = editor.get_html_content();
            if (after == before)
                return;
            text->undo();
            compare(before, u"undo"_s);
            text->redo();
            compare(after, u"redo"_s);
        };
    };
    const auto unchanged = [&](const std::function<void()> &change) {
        return [&, change] {
            const QString before = editor.get_html_content();
            change();
            compare(before, u"what changes nothing"_s);
        };
    };
    const auto command = [&] {
        static const QList others{EditorCommand::Print, EditorCommand::InsertImage, EditorCommand::Undo,
                                  EditorCommand::Redo}; // which ask, or are no step of their own
        const auto any_command = static_cast<EditorCommand>(random.bounded(int(EditorCommand::RemoveColumns) + 1));
        if (any_command == EditorCommand::InsertTable)
            editor.insert_table_of_size(1 + random.bounded(3), 1 + random.bounded(3));
        else if (!others.contains(any_command))
            editor.action(any_command)->trigger();
    };
    const QStringList keys =
        u"Return|Tab|Shift+Backtab|Backspace|Ctrl+Del|Up|Shift+Right|Shift+Up|Shift+Down"_s.split(u'|');
    const auto key = [&] { QTest::keySequence(text, any(keys)); };
    const auto rarely = [&](const std::function<void()> &run) {
        return [&, run] { random.bounded(4) ? void() : run(); };
    };
    const auto search = [&](void (SearchDialog::*operation)()) {
        return [&, operation] {
            if (!editor.search_dialog || random.bounded(5) == 0)
                editor.search_text();
            editor.search_dialog->search_input->setText(any({u"cat"_s, u"o"_s, u"teh"_s, u"."_s}));
            editor.search_dialog->replace_input->setText(any({u"du"_s, QString()}));
            (editor.search_dialog->*operation)();
        };
    };
    walk.go(
        {
            {"type", [&] { QTest::keyClicks(text, any(u"teh |a cat. |wrod|x|* "_s.split(u'|'))); }},
            {"insert", [&] { text->insertPlainText(any(words)); }},
            {"key", key},
            {"key", key},
            {"key", key},
            {"key", key},
            {"caret", [&] { select(text, position()); }},
            {"select", [&] { select(text, position(), position()); }},
            {"select all", [&] { text->selectAll(); }},
            {"edits at once", step([&] {
                 if (!document()->rootFrame()->childFrames().isEmpty())
                     return; // Qt's layout paints justified lines that are no more then, and crashes
                 QTextCursor cursor(document());
                 cursor.beginEditBlock();
                 for (int i = 0; i < 3; ++i) {
                     cursor.setPosition(position());
                     random.bounded(2) ? cursor.insertText(any(words)) : cursor.deletePreviousChar();
                 }
                 cursor.endEditBlock();
             })},
            {"merge cells",
             [&] {
                 if (QTextTable *table = text->textCursor().currentTable()) {
                     table->mergeCells(0, 0, random.bounded(table->rows()) + 1, random.bounded(table->columns()) + 1);
                     document()->clearUndoRedoStacks(); // Qt redoes it with other paragraphs, and
                     save();                            // takes the next undo for one to what was saved
                 }
             }},
            {"undo", [&] { text->undo(); }},
            {"redo", [&] { text->redo(); }},
            {"command", step(command)},
            {"command", step(command)},
            {"command", step(command)},
            {"size", step([&] { editor.set_font_size(double(8 + random.bounded(20))); })},
            {"line spacing", step([&] { editor.set_line_spacing(1.5); })},
            {"read-only", unchanged([&] {
                 editor.set_read_only(true);
                 for (int i = 0; i < 3; ++i)
                     command();
                 editor.correct_word();
                 QTest::keyClicks(text, u"x\t"_s);
                 editor.set_read_only(false);
             })},
            {"zoom", unchanged([&] { random.bounded(2) ? editor.zoom_in() : editor.zoom_out(); })},
            {"show misspelled", [&] { editor.show_first_misspelled(editor.highlighter->misspelled); }},
            {"language", rarely([&] { editor.set_lang(random.bounded(3) ? u"en_US"_s : QString()); })},
            {"marking", rarely([&] { editor.set_marking_while_writing(!editor.is_marking_while_writing()); })},
            {"pause", rarely([&] {
                 if (!editor.is_marking_while_writing() || !editor.spellchecker)
                     return;
                 text->moveCursor(QTextCursor::End);
                 QTest::keyClicks(text, u" "_s); // leaves the word
                 QTRY_COMPARE(editor.highlighter->misspelled, editor.spellchecker->check(editor.get_text_content()));
                 QTRY_COMPARE(underline_fault(editor), QString());
             })},
            {"picture", [&] { QGuiApplication::clipboard()->setImage(QImage(9, 9, QImage::Format_RGB32)); }},
            {"replace selection", step([&] { editor.replace_selected_text(any(html)); })},
            {"insert after selection", step([&] { editor.insert_after_selection(any(html)); })},
            {"clear highlights", step([&] { editor.clear_highlights(); })},
            {"find next", search(&SearchDialog::find_next)},
            {"find all", step(search(&SearchDialog::find_all_matches))},
            {"replace", step(search(&SearchDialog::replace))},
            {"replace all", step(search(&SearchDialog::replace_all))},
            {"close search", [&] { editor.search_dialog ? void(editor.search_dialog->close()) : void(); }},
            {"load", rarely([&] { load(any(html)); })},
            {"reload", [&] { load(editor.get_html_content()); }},
            {"save", save},
            {"swap document", rarely([&] {
                 auto *other = new QTextDocument(text);
                 other->setDefaultFont(random.bounded(2) ? text->font() : QFont(u"Courier"_s, 9));
                 other->setPlainText(saved = any(words));
                 text->setDocument(other);
             })},
        },
        [&] {
            if (document()->characterCount() > 5'000)
                load(any(html));
            if (fault.isEmpty())
                fault = editor_fault(editor);
            if (fault.isEmpty() && !editor.is_modified() && editor.get_text_content() != saved)
                fault = u"the text is not modified:\n%1\nof\n%2"_s.arg(editor.get_text_content(), saved);
            return fault.isEmpty() && random.bounded(20) == 0 ? history_fault(editor) : fault;
        });
}

void TstRandomOperations::tabs()
{
    Walk walk;
    QRandomGenerator &random = walk.random;
    EditableTabWidget tabs;
    tabs.resize(700, 300);
    tabs.show();
    answer_every_box();
    QObject pages; // owns what was closed
    QObject::connect(&tabs, &EditableTabWidget::tab_removed, &pages, [](QWidget *page) { page->deleteLater(); });
    const auto tab = [&] { return random.bounded(std::max(tabs.count(), 1)); };
    const auto in_field = [&](const std::function<void(QLineEdit *)> &use) {
        return [&tabs, use] {
            if (tabs.line_edit)
                use(tabs.line_edit);
        };
    };
    walk.go(
        {
            {"add", [&] { tabs.count() < 6 ? void(tabs.addTab(new QLineEdit, tabs.unique_title(u"Tab"_s))) : void(); }},
            {"double click",
             [&] { QTest::mouseDClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab()).center()); }},
            {"field text", in_field([&](QLineEdit *field) { field->setText(QString::number(random.bounded(6))); })},
            {"Return", in_field([](QLineEdit *field) { QTest::keyClick(field, Qt::Key_Return); })},
            {"Escape", in_field([](QLineEdit *field) { QTest::keyClick(field, Qt::Key_Escape); })},
            {"current", [&] { tabs.setCurrentIndex(tab()); }},
            {"move", [&] { tabs.tabBar()->moveTab(tab(), tab()); }},
            {"close", [&] { tabs.closeTab(tab()); }},
            {"rename", [&] { tabs.rename_tab(tab(), QString::number(random.bounded(9))); }},
            {"delete", [&] { random.bounded(3) ? void() : delete tabs.widget(tab()); }},
        },
        [&] {
            QStringList titles;
            for (int i = 0; i < tabs.count(); ++i)
                titles.append(tabs.tabText(i));
            const bool is_lost = tabs.line_edit && tabs.count() > 0 && !tabs.line_edit->isVisible();
            return titles.removeDuplicates() ? u"two tabs have one title"_s : is_lost ? u"a hidden field"_s : QString();
        });
}

void TstRandomOperations::downloads()
{
    Walk walk;
    QRandomGenerator &random = walk.random;
    HttpServer server;
    server.answers[QByteArray("/ok")] = HttpServer::status("200 OK", QByteArray(50'000, 'x'));
    server.answers[QByteArray("/slow")] = HttpServer::drip(QByteArray(50'000, 'x'), 10, 5);
    server.answers[QByteArray("/missing")] = HttpServer::status("404 Not Found", "gone");
    server.answers[QByteArray("/elsewhere")] = HttpServer::status("302 Found", {}, "Location: /slow\r\n");
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    std::unique_ptr<DownloadDialog> dialog;
    int ends = 0;
    walk.go(
        {
            {"start",
             [&] {
                 const QByteArray paths[] = {"/ok", "/slow", "/missing", "/elsewhere", "/none"};
                 dialog.reset();
                 QFile::remove(path);
                 ends = 0;
                 dialog = std::make_unique<DownloadDialog>(server.url(paths[random.bounded(5)]), path, u"m"_s);
                 QObject::connect(dialog.get(), &DownloadDialog::download_ended, dialog.get(), [&] { ++ends; });
             }},
            {"show", [&] { dialog ? dialog->show() : void(); }},
            {"cancel", [&] { dialog ? dialog->cancel() : void(); }},
            {"close", [&] { dialog ? void(dialog->close()) : void(); }},
            {"wait", [&] { QTest::qWait(random.bounded(30)); }},
            {"destroy", [&] { dialog.reset(); }},
        },
        [&] {
            if (!dialog || dialog->outcome() == DownloadOutcome::Pending)
                return QString();
            const bool is_whole = QFileInfo(path).size() == 50'000;
            if (dialog->outcome() == DownloadOutcome::Completed && !is_whole)
                return u"completed with half a file"_s;
            if (dialog->outcome() == DownloadOutcome::Failed && dialog->error_text().isEmpty())
                return u"failed without a reason"_s;
            return ends > 1 ? u"ended twice"_s : QString();
        });
}

MY_CLASSES_TEST_MAIN(TstRandomOperations)

#include "tst_random_operations.moc"
