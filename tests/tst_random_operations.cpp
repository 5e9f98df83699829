// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// What persons and hosts do, in any order. MY_CLASSES_SEED and MY_CLASSES_OPERATIONS in the environment choose another
// walk and a longer one; a failure tells the seed and the last operations.

#include "support/http_server.h"
#include "support/spelling_support.h"
#include "support/test_support.h"

#include <my_classes/my_classes.h>

#include <QtCore/QMimeData>
#include <QtCore/QRandomGenerator>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtGui/QTextTable>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolBar>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace my_classes;
using test_support::plain_underlines;
using test_support::underlines;
using namespace Qt::StringLiterals;

namespace {

struct Operation
{
    const char *name;
    std::function<void()> run;
};

class Walk
{
public:
    Walk()
        : m_seed(qEnvironmentVariableIntValue("MY_CLASSES_SEED"))
        , m_length(std::max(qEnvironmentVariableIntValue("MY_CLASSES_OPERATIONS"), 300))
        , random(quint32(m_seed))
    {
    }

    /// Takes one of `operations` at a time, and looks at `fault` after each.
    void go(const std::vector<Operation> &operations, const std::function<QString()> &fault)
    {
        QStringList done;
        for (int i = 0; i < m_length; ++i) {
            const Operation &next = operations[std::size_t(random.bounded(int(operations.size())))];
            done.append(QString::fromLatin1(next.name));
            next.run();
            QCoreApplication::processEvents();
            const QString found = fault();
            QVERIFY2(found.isEmpty(), qPrintable(u"seed %1, operation %2, after %3:\n%4"_s.arg(m_seed).arg(i).arg(
                                          QStringList(done.mid(std::max(0, i - 12))).join(u", "_s), found)));
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    int m_seed;
    int m_length;

public:
    QRandomGenerator random;
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
    const auto number = [](qsizetype count) { return QLocale(QLocale::English).toString(qlonglong(count)); };
    return u"Lang: %1 | %2%3 sentences | %4 words | %5 characters"_s.arg(
        editor.lang.toUpper(), selected.isEmpty() ? QString() : u"Selected: "_s, number(sentences), number(words),
        number(text.toUcs4().size()));
}

/// What does not hold of `editor`; empty if all does.
QString editor_fault(const CustomTextEditor &editor)
{
    const QString label = editor.word_count_label->text();
    if (label != expected_label(editor))
        return u"the label reads \"%1\", not \"%2\""_s.arg(label, expected_label(editor));
    if (editor.clear_formatting_action->isEnabled() != editor.text_edit->textCursor().hasSelection())
        return u"clearing the format is enabled wrongly"_s;
    for (QTextBlock block = editor.text_edit->document()->begin(); block.isValid(); block = block.next()) {
        if (underlines(block) != plain_underlines(block.text(), editor.highlighter->misspelled))
            return u"\"%1\" is underlined as \"%2\""_s.arg(block.text(), underlines(block));
    }
    return {};
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
    return after == before ? QString() : u"undoing and redoing everything gave\n%1\nfor\n%2"_s.arg(after, before);
}

} // namespace

class TstRandomOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }

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
        u"<hr><h2>Title</h2>text"_s,
        u"<p style='line-height:150%'>a<br>b</p><img src='data:image/png;base64,AAAA' width=20 height=9>"_s,
        QString(),
    };
    const auto position = [&] { return random.bounded(text->document()->characterCount()); };
    const auto key = [text](Qt::Key k, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return [=] { QTest::keyClick(text, k, modifiers); };
    };
    const auto trigger = [&editor](const QString &name) {
        return [&editor, name] {
            for (QAction *action : editor.toolbar->actions()) {
                if (action->text() == name)
                    action->trigger();
            }
        };
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
            {"type",
             [&] {
                 QTest::keyClicks(text, any({u"teh "_s, u"a cat. "_s, u"wrod"_s, u"x"_s}));
             }},
            {"insert", [&] { text->insertPlainText(any(words)); }},
            {"Return", key(Qt::Key_Return)},
            {"Tab", key(Qt::Key_Tab)},
            {"Backspace", key(Qt::Key_Backspace)},
            {"Ctrl+Delete", key(Qt::Key_Delete, Qt::ControlModifier)},
            {"Up", key(Qt::Key_Up)},
            {"Shift+Right", key(Qt::Key_Right, Qt::ShiftModifier)},
            {"Shift+Up", key(Qt::Key_Up, Qt::ShiftModifier)},
            {"caret",
             [&] {
                 QTextCursor cursor = text->textCursor();
                 cursor.setPosition(position());
                 text->setTextCursor(cursor);
             }},
            {"select",
             [&] {
                 QTextCursor cursor = text->textCursor();
                 cursor.setPosition(position());
                 cursor.setPosition(position(), QTextCursor::KeepAnchor);
                 text->setTextCursor(cursor);
             }},
            {"select all", [&] { text->selectAll(); }},
            {"edits at once",
             [&] {
                 QTextCursor cursor(text->document());
                 cursor.beginEditBlock();
                 for (int i = 0; i < 3; ++i) {
                     cursor.setPosition(position());
                     random.bounded(2) ? cursor.insertText(any(words)) : cursor.deletePreviousChar();
                 }
                 cursor.endEditBlock();
             }},
            {"table",
             [&] {
                 if (QTextTable *table = text->textCursor().currentTable())
                     table->insertRows(0, 2);
             }},
            {"undo", [&] { text->undo(); }},
            {"redo", [&] { text->redo(); }},
            {"bold", [&] { editor.bold_action->trigger(); }},
            {"italic", [&] { editor.italic_action->trigger(); }},
            {"size", [&] { editor.set_font_size(double(8 + random.bounded(20))); }},
            {"alignment", [&] { editor.set_alignment(random.bounded(2) ? Qt::AlignRight : Qt::AlignJustify); }},
            {"line spacing", [&] { editor.set_line_spacing(1.5); }},
            {"clear formatting", [&] { editor.clear_formatting(); }},
            {"numbered list", [&] { editor.insert_numbered_list(); }},
            {"disc list", [&] { editor.insert_bullet_list_disc(); }},
            {"zoom in", [&] { editor.zoom_in(); }},
            {"zoom out", [&] { editor.zoom_out(); }},
            {"check", [&] { editor.check_spelling(); }},
            {"check and show",
             [&] {
                 editor.check_spelling();
                 editor.show_first_misspelled(editor.highlighter->misspelled);
             }},
            {"correct", [&] { editor.correct_word(); }},
            {"replace selection", [&] { editor.replace_selected_text(any(html)); }},
            {"insert after selection", [&] { editor.insert_after_selection(any(html)); }},
            {"set html", [&] { random.bounded(4) ? void() : editor.set_html_content(any(html)); }},
            {"copy", trigger(u"Copy"_s)},
            {"cut", trigger(u"Cut"_s)},
            {"paste", trigger(u"Paste"_s)},
            {"paste unformatted", [&] { editor.paste_plain_text(); }},
            {"clear highlights", [&] { editor.clear_highlights(); }},
            {"find next", search(&SearchDialog::find_next)},
            {"find all", search(&SearchDialog::find_all_matches)},
            {"replace", search(&SearchDialog::replace)},
            {"replace all", search(&SearchDialog::replace_all)},
            {"close search", [&] { editor.search_dialog ? void(editor.search_dialog->close()) : void(); }},
            {"save", [&] { editor.set_html_content(editor.get_html_content()); }},
            {"swap document",
             [&] {
                 if (random.bounded(8) == 0)
                     text->setDocument(new QTextDocument(any(words), text));
             }},
        },
        [&] {
            if (text->document()->characterCount() > 5'000)
                editor.set_html_content(any(html));
            const QString fault = editor_fault(editor);
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
             [&] {
                 const QPoint middle = tabs.tabBar()->tabRect(tab()).center();
                 QTest::mouseDClick(tabs.tabBar(), Qt::LeftButton, {}, middle);
             }},
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
    using test_support::HttpServer;
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
