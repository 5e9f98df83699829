// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/layout_comparison.h"
#include "support/test_support.h"

#include <QtGui/QPdfWriter>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

/// HTML of all sorts, and edits of it; the same for the same seed.
class Documents
{
public:
    explicit Documents(quint32 seed)
        : m_random(seed)
    {
    }

    int below(int bound) { return m_random.bounded(bound); }
    QString any_of(const QString &texts) { return any_of(texts.split(u'|')); }
    QString any_of(const QStringList &texts) { return texts[below(int(texts.size()))]; }

    QString runs()
    {
        QString html;
        for (int i = below(4); i > 0; --i)
            html += u"<span style='%1'>%2</span>"_s.arg(any_of(k_styles), any_of(k_texts));
        return html;
    }

    QString block(int depth)
    {
        const QString inner = depth > 0 ? block(depth - 1) : runs();
        const QString start = any_of(u"<p align=right|<h2|<pre|<blockquote|<div|<p dir=rtl|<hr"_s);
        switch (below(4)) {
        case 0:
            return u"<%1 type=A><li style='%2'>%3</li><li>%4</li></%1>"_s.arg(any_of(u"ol|ul"_s), any_of(k_styles),
                                                                              inner, runs());
        case 1:
            return u"<table border=%1 style='%2'><tr><td>%3</td><td colspan=%1>%4</td></tr></table>"_s.arg(
                QString::number(below(3)), any_of(k_styles), inner, runs());
        default:
            return start + u" style='%1'>%2</div>"_s.arg(any_of(k_styles), inner);
        }
    }

    QString html()
    {
        QString html = any_of(u"||<title>T</title>|<body style='margin:20px; background:red'>|<body bgcolor=blue>"_s);
        for (int i = below(4); i > 0; --i)
            html += block(2);
        return html;
    }

    void edit(QTextDocument *document)
    {
        QTextCursor cursor(document);
        cursor.setPosition(below(2) * below(document->characterCount()));
        cursor.setPosition(below(document->characterCount()), QTextCursor::KeepAnchor);
        QTextBlockFormat lines;
        lines.setAlignment(below(2) ? Qt::AlignRight : Qt::AlignLeft);
        lines.setLineHeight(1.5, 150);
        QTextCharFormat letters;
        letters.setFontPointSize(below(2) ? 12 : 15);
        letters.setFontWeight(QFont::Bold);
        const std::function<void()> edits[] = {[&] { cursor.removeSelectedText(); },
                                               [&] { cursor.createList(QTextListFormat::ListSquare); },
                                               [&] { cursor.insertBlock(); },
                                               [&] { cursor.mergeBlockFormat(lines); },
                                               [&] { cursor.mergeCharFormat(letters); },
                                               [&] { cursor.mergeBlockCharFormat(letters); },
                                               [&] { document->setDocumentMargin(10 * below(3)); },
                                               [&] { document->setPlainText({}); }};
        edits[below(8)]();
    }

private:
    const QStringList k_styles =
        u"|font-size:12pt|font-size:15pt; margin-left:9px|font-size:large|font-size:20px; color:red|line-height:150%|"
        u"float:left; width:50px|page-break-before:always|font-size:15pt|font-weight:bold"_s.split(u'|');
    const QStringList k_texts = u"word|two words| |é<br>b|<a name='n' href='x'>link</a>|"_s.split(u'|')
                                << picture_html(2, 2);
    QRandomGenerator m_random;
};

struct Printed
{
    QByteArray file;
    QByteArray drawing; // what the pages consist of
    QSize page;         // in dots
};

Printed print(const QList<const CustomTextEditor *> &editors, const QString &title = {})
{
    Printed printed;
    QBuffer buffer(&printed.file);
    buffer.open(QBuffer::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        printed.page = QSize(writer.width(), writer.height());
        CustomTextEditor::print_all_to(&writer, editors, title);
    }
    for (qsizetype at = 0; (at = printed.file.indexOf("\nstream\n", at)) >= 0; ++at) {
        const QByteArray packed = printed.file.mid(at + 8, printed.file.indexOf("\nendstream", at) - at - 8);
        if (packed.startsWith('x')) // the size comes first, any will do
            printed.drawing += qUncompress(QByteArray(4, '\1') + packed);
    }
    return printed;
}

} // namespace

class TstContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void html_is_the_same_at_any_zoom()
    {
        QFont in_pixels(u"Times new roman"_s);
        in_pixels.setPixelSize(20);
        CustomTextEditor editors[] = {CustomTextEditor(std::nullopt), CustomTextEditor(in_pixels)};
        for (quint32 seed = 0; seed < 150; ++seed) {
            CustomTextEditor &editor = editors[seed % 2];
            Documents documents(seed);
            editor.text_edit->setHtml(documents.html());
            for (int i = documents.below(8); i > 0; --i)
                documents.edit(editor.text_edit->document());
            const auto seen = [&editor] {
                editor.text_edit->selectAll();
                editor.text_edit->copy();
                const QTextDocument *document = editor.text_edit->document();
                return QVariantList{editor.get_html_content(), QApplication::clipboard()->mimeData()->html(),
                                    document->isModified(), document->availableUndoSteps()};
            };
            const QVariantList before = seen();
            editor.set_zoom_percent(130); // some text is as large as zoomed
            QVERIFY2(seen() == before, qPrintable(u"%1: %2"_s.arg(QString::number(seed), before[0].toString())));
            editor.set_zoom_percent(70);
        }
        CustomTextEditor &editor = editors[0];
        editor.text_edit->clear();
        editor.insert_bullet_list_disc();
        editor.text_edit->textCursor().deletePreviousChar(); // a single empty item
        const QString before = editor.get_html_content();
        editor.zoom_in();
        QCOMPARE(editor.get_html_content(), before);
        QVERIFY(!print({&editor}).file.isEmpty());

        auto *other = new QTextDocument(u"text"_s, &editor); // of a host, which wants it back as it was
        other->setDefaultFont(QFont(u"Courier"_s, 9));
        const QString others = other->toHtml();
        editor.text_edit->setDocument(other);
        editor.zoom_in();
        QCOMPARE(editor.get_html_content(), others);
        QVERIFY(other->defaultFont().pointSizeF() > 10);
        editor.text_edit->setDocument(new QTextDocument(&editor));
        QCOMPARE(other->toHtml(), others);
    }

    void loaded_text_follows_the_zoom()
    {
        CustomTextEditor editor(std::nullopt);
        QTextEdit plain;
        plain.setFont(editor.text_edit->font());
        for (quint32 seed = 0; seed < 300; ++seed) {
            // As anybody writes it, and as Qt does.
            const QString html =
                seed % 2 ? plain.toHtml() : u"<body style='font-size:12pt'>"_s + Documents(seed).html();
            plain.setHtml(html);
            editor.set_zoom_percent(seed % 2 ? 70 : 130);
            QSignalSpy changed(editor.text_edit, &QTextEdit::textChanged);
            editor.set_html_content(html);
            QCOMPARE(changed.size(), 1);
            QVERIFY2(editor.get_html_content() == plain.toHtml(), qPrintable(html));
            QVERIFY(!editor.text_edit->document()->isUndoAvailable() && !editor.is_modified());
            QVERIFY(editor.text_edit->isUndoRedoEnabled());
        }
        editor.set_html_content(u"<h2>a</h2><p>b<span style='font-size:30pt'>c</span></p><ul><li>d</li></ul>"_s);
        editor.set_html_content(editor.get_html_content());
        for (const auto &[position, has_size] : {std::pair(1, false), {3, false}, {4, true}, {6, false}}) {
            QTextCursor cursor(editor.text_edit->document());
            cursor.setPosition(position);
            QCOMPARE(cursor.charFormat().hasProperty(QTextFormat::FontPointSize), has_size);
        }
    }

    void zoom_comes_back()
    {
        for (const double size : {8.25, 12.5}) {
            QFont font(u"Times new roman"_s);
            font.setPointSizeF(size);
            CustomTextEditor editor(font);
            const auto points = [&editor] { return editor.text_edit->font().pointSizeF(); };
            editor.update_font_combos();
            const QString shown_size = editor.font_size_combo->currentText();
            for (int i = 0; i < 10; ++i)
                editor.zoom_out();
            QCOMPARE(points(), qMax(1.25, size - 10));
            editor.update_font_combos();
            QCOMPARE(editor.font_size_combo->currentText(), shown_size);
            for (int i = 0; i < 10; ++i)
                editor.zoom_in();
            QCOMPARE(points(), size);
            editor.set_zoom_percent(0);
            editor.set_zoom_percent(100);
            editor.zoom_in();
            QCOMPARE(points(), qMax(1.25, size - 9));
            QCOMPARE(editor.get_html_content(), CustomTextEditor(font).get_html_content());
        }
    }

    void formats_are_one_step_and_end()
    {
        CustomTextEditor editor(std::nullopt);
        QTextEdit *text_edit = editor.text_edit;
        const QList<std::function<void()>> commands{
            [&] { editor.bold_action->trigger(); }, [&] { editor.underline_action->trigger(); },
            [&] { editor.set_font_size(u"20"_s); }, [&] { editor.set_font_family(u"Arial"_s); }};
        for (const auto &command : commands) {
            editor.set_html_content(u"one <i>two</i> three"_s);
            const QString before = editor.get_html_content();
            text_edit->selectAll();
            command();
            QVERIFY(editor.get_html_content() != before);
            QTest::keySequence(text_edit, QKeySequence::Undo);
            QCOMPARE(editor.get_html_content(), before);
            QVERIFY(!text_edit->document()->isUndoAvailable());
        }

        // What is typed or pressed; the bold text in brackets.
        for (const auto &[keys, expected] : {std::pair(u"B one B two"_s, u"[one]two"_s),
                                             {u"B one Space two B x Space"_s, u"[one two]x "_s},
                                             {u"B one B two B x"_s, u"[onetwox]"_s}, // the end of a word typed before
                                             {u"one B x"_s, u"[onex]"_s},
                                             {u"B one Left Right B x"_s, u"onex"_s},
                                             {u"B one Space B two B x"_s, u"[one twox]"_s},
                                             {u"one Space B Backspace Backspace B x"_s, u"[onx]"_s},
                                             {u"B U one B x"_s, u"[one]x"_s},
                                             {u"B one U x B y"_s, u"[onex]y"_s},
                                             {u"B on ´e B x"_s, u"[oné]x"_s}}) { // by input method
            CustomTextEditor other(std::nullopt);
            QInputMethodEvent composed;
            composed.setCommitString(u"é"_s);
            for (const QString &key : keys.split(u' ')) {
                if (key == u"B" || key == u"U")
                    (key == u"B" ? other.bold_action : other.underline_action)->trigger();
                else if (key == u"´e")
                    QCoreApplication::sendEvent(other.text_edit, &composed);
                else if (key.isLower())
                    QTest::keyClicks(other.text_edit, key);
                else
                    QTest::keySequence(other.text_edit, key);
            }
            QCOMPARE(bold_in_brackets(other.text_edit->document()), expected);
        }
    }

    void modified_by_edits_only()
    {
        CustomTextEditor editor(std::nullopt);
        QTextEdit *text_edit = editor.text_edit;
        QSignalSpy told(&editor, &CustomTextEditor::modified_changed);
        SearchDialog search(text_edit);
        search.search_input->setText(u"a"_s);
        const auto mark = [&](int times) {
            for (int i = 0; i < times; ++i) {
                editor.check_spelling();
                search.find_all_matches();
                editor.set_zoom_percent(110);
                editor.clear_highlights();
                search.find_all_matches();
            }
            return editor.is_modified();
        };
        const auto undo = [&](int steps) {
            for (int i = 0; i < steps; ++i)
                text_edit->undo();
            return editor.is_modified();
        };
        const auto type = [&](const QString &text) {
            text_edit->insertPlainText(text);
            return editor.is_modified();
        };
        editor.set_html_content(u"a cat, teh banana"_s);
        QVERIFY(!editor.is_modified() && !mark(2));
        QVERIFY(type(u"b"_s) && mark(1));
        editor.set_modified(false);
        QVERIFY(!mark(1));
        QVERIFY(!undo(1) && !undo(3) && undo(5)); // marks, before saving as after
        while (text_edit->document()->isRedoAvailable())
            text_edit->redo();
        QVERIFY(!editor.is_modified());
        QVERIFY(type(u"c"_s) && !undo(1) && !undo(1));
        QVERIFY(type(u"c"_s)); // in place of a mark
        editor.set_modified(true);
        QVERIFY(undo(1));
        const auto type_without_undo = [&] {
            text_edit->setUndoRedoEnabled(false);
            QTest::keyClicks(text_edit, u"x"_s);
            text_edit->setUndoRedoEnabled(true);
        };
        const std::function<void()> edits[] = {type_without_undo, [&] { text_edit->document()->setHtml(u"other"_s); },
                                               [&] { text_edit->document()->setModified(true); }};
        for (const auto &edit : edits) {
            editor.set_text_content(u"new"_s);
            QVERIFY(!editor.is_modified());
            edit();
            QVERIFY(editor.is_modified());
        }
        editor.set_text_content(u"new"_s);
        QVERIFY(told.size() % 2 == 0 && told.constLast().constFirst().toBool() == false);
    }

    void tells_of_counts_zoom_and_read_only()
    {
        CustomTextEditor editor(std::nullopt);
        QSignalSpy counted(&editor, &CustomTextEditor::counts_changed);
        QSignalSpy zoomed(&editor, &CustomTextEditor::zoom_changed);
        QSignalSpy locked(&editor, &CustomTextEditor::read_only_changed);
        editor.set_text_content(u"Two words."_s);
        QVERIFY(editor.counts() == (EditorCounts{1, 2, 10, false}));
        editor.text_edit->moveCursor(QTextCursor::NextWord, QTextCursor::KeepAnchor);
        QVERIFY(editor.counts() == (EditorCounts{1, 1, 4, true}));
        QCOMPARE(counted.size(), 2);
        editor.set_zoom_percent(300);
        editor.zoom_in(); // refused
        editor.zoom_out();
        QCOMPARE(zoomed, (QList<QList<QVariant>>{{300}, {290}}));
        editor.set_read_only(true);
        QVERIFY(editor.is_read_only() && editor.text_edit->isReadOnly());
        QVERIFY(!editor.findChild<QLabel *>(u"read_only_label"_s)->isHidden());
        editor.text_edit->setReadOnly(false);
        QCOMPARE(locked, (QList<QList<QVariant>>{{true}, {false}}));
    }

    void commands_respect_read_only()
    {
        CustomTextEditor editor(std::nullopt);
        editor.set_html_content(u"<b>one</b> two<table><tr><td>a</td></tr></table>"_s);
        editor.text_edit->textCursor().insertText(u"x"_s);
        editor.text_edit->selectAll();
        QApplication::clipboard()->setText(u"pasted"_s);
        editor.set_read_only(true);
        const QString before = editor.get_html_content();
        for (const auto allowed : {EditorCommand::Copy, EditorCommand::SelectAll, EditorCommand::CheckSpelling})
            QVERIFY(editor.action(allowed)->isEnabled());
        editor.text_edit->selectAll();
        editor.set_alignment(Qt::AlignRight);
        editor.set_line_spacing(2);
        editor.set_font_size(u"30"_s);
        editor.clear_formatting();
        editor.insert_numbered_list();
        editor.insert_after_selection(u"x"_s);
        editor.replace_selected_text({});
        editor.paste_plain_text();
        SearchDialog search(editor.text_edit);
        search.search_input->setText(u"two"_s);
        search.find_next();
        QVERIFY(!search.replace_button->isEnabled() && !search.replace_all_button->isEnabled());
        search.replace();
        search.replace_all();
        search.find_all_matches();
        QCOMPARE(search.search_results, QList<int>{5});
        search.clear_highlight();
        editor.clear_highlights();
        QCOMPARE(editor.get_html_content(), before);
        editor.text_edit->selectAll();
        editor.set_read_only(false);
        for (const auto command : {EditorCommand::Bold, EditorCommand::Undo, EditorCommand::ClearFormatting})
            QVERIFY(editor.action(command)->isEnabled());
    }

    void counts_notice_edits_in_slots_and_undo()
    {
        CustomTextEditor editor(std::nullopt);
        editor.set_text_content(u"end"_s);
        editor.text_edit->moveCursor(QTextCursor::End);
        QTextCursor start(editor.text_edit->document());
        const auto words_after = [&](const std::function<void()> &edit) {
            connect(start.document(), &QTextDocument::contentsChange, &editor, edit, Qt::SingleShotConnection);
            editor.text_edit->insertPlainText(u"x"_s);
            return editor.counts().words;
        };
        QCOMPARE(words_after([&] { start.insertText(u"a. b. "_s); }), 3);
        start.setPosition(2);
        start.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
        QCOMPARE(words_after([&] { start.insertText(u"c"_s); }), 2); // of the same length: a blank goes
        QCOMPARE(editor.get_text_content(), u"a.cb. endxx"_s);
        QTextEdit *text_edit = editor.text_edit;
        const std::function<void()> changes[] = {[&] { text_edit->undo(); }, [&] { text_edit->redo(); },
                                                 [&] { text_edit->insertPlainText(u"abcd"_s); },
                                                 [&] { select(text_edit, 0, 4); }, [&] { select(text_edit, 4, 1); }};
        editor.set_text_content(u"one two"_s);
        QRandomGenerator random(1);
        for (int i = 0; i < 200; ++i) { // selections that undoing takes away, and that come again
            changes[random.bounded(5)]();
            QCoreApplication::processEvents();
            const bool selected = text_edit->textCursor().hasSelection();
            QVERIFY(editor.counts().of_selection == selected &&
                    editor.clear_formatting_action->isEnabled() == selected);
        }
    }

    void documents_are_left_as_found()
    {
        QTextDocument document;
        document.setHtml(picture_html(4, 4) + u"text"_s);
        TextObject handler;
        document.documentLayout()->registerHandler(QTextFormat::ImageObject, &handler);
        const auto handler_in_use = [&] {
            return document.documentLayout()->handlerForObject(QTextFormat::ImageObject);
        };
        const auto helpers = [&] { return document.children().size() + document.documentLayout()->children().size(); };
        const qsizetype helpers_before = helpers();
        CustomTextEditor editor(std::nullopt);
        const QPointer<QTextDocument> own = editor.text_edit->document();
        own->setParent(&editor);
        for (int i = 0; i < 20; ++i) {
            editor.text_edit->setDocument(&document);
            auto second = std::make_unique<CustomTextEditor>(std::nullopt);
            second->text_edit->setDocument(&document);
            if (i % 2 == 0)
                second.reset();
            editor.text_edit->setDocument(own);
        }
        QVERIFY(handler_in_use() == &handler);
        QCOMPARE(helpers(), helpers_before);
        QCOMPARE(editor.counts().words, 0);
    }

    void deleted_in_slots()
    {
        using Editor = CustomTextEditor;
        using Change = std::function<void(Editor &)>;
        const auto dies = [this](auto sender, auto signal, const Change &change) {
            auto *tab = new CustomTab({}, {}, u"en_US"_s);
            const QPointer<Editor> editor = tab->editor;
            editor->set_html_content(u"<b>teh</b> cat"_s);
            editor->check_spelling();
            select(editor->text_edit, 1);
            connect(sender(editor.data()), signal, this, [tab] { delete tab; });
            change(*editor);
            return !editor;
        };
        const auto itself = [](Editor *editor) { return editor; };
        const auto page = [](Editor *editor) { return static_cast<CustomTab *>(editor->parent()); };
        const Change changes[] = {
            [](Editor &editor) { QTest::keyClick(editor.text_edit, 'x'); },
            [](Editor &editor) { editor.text_edit->setDocument(new QTextDocument(editor.text_edit)); },
            [](Editor &editor) { editor.insert_table_of_size(2, 2); },
            [](Editor &editor) { editor.insert_numbered_list(); },
        };
        for (const Change &change : changes) {
            QVERIFY(dies(itself, &Editor::counts_changed, change));
            QVERIFY(dies(page, &CustomTab::text_changed, change));
        }
        QVERIFY(dies(page, &CustomTab::text_changed, [](Editor &editor) { editor.set_line_spacing(2); }));
        QVERIFY(dies(itself, &Editor::modified_changed, changes[0]));
        QVERIFY(dies(itself, &Editor::modified_changed, [](Editor &editor) { editor.set_modified(true); }));
        QVERIFY(dies(itself, &Editor::read_only_changed, [](Editor &editor) { editor.set_read_only(true); }));
        // Qt does not survive it in a signal of the text area or its document.
        const auto select_quietly = [](Editor &editor, int anchor, int position) {
            const QSignalBlocker quiet(editor.text_edit);
            select(editor.text_edit, anchor, position);
        };
        const Change leave_word = [&](Editor &editor) {
            select_quietly(editor, 6, 6);
            editor.update_from_cursor();
        };
        const Change select_word = [&](Editor &editor) {
            select_quietly(editor, 4, 7);
            editor.count_words();
        };
        const std::pair<QAction * Editor::*, Change> actions[] = {
            {&Editor::bold_action, leave_word},
            {&Editor::bold_action, [](Editor &editor) { editor.set_read_only(true); }},
            {&Editor::correctAction, leave_word},
            {&Editor::correctAction, [](Editor &editor) { editor.check_spelling(); }},
            {&Editor::correctAction, [](Editor &editor) { editor.show_first_misspelled({u"cat"_s}); }},
            {&Editor::checkAction, [](Editor &editor) { editor.set_lang({}); }},
            {&Editor::clear_formatting_action, select_word}};
        for (const auto &[action, change] : actions)
            QVERIFY(dies([member = action](Editor *editor) { return editor->*member; }, &QAction::changed, change));
    }

    void prints_in_pages()
    {
        CustomTextEditor editor(std::nullopt);
        CustomTextEditor other(QFont(u"Arial"_s, 20));
        editor.set_text_content(u"Some wrods that fill a line of teh page, and then another one.\n"_s.repeated(60));
        other.set_html_content(u"<ul><li></li></ul>"_s);
        const auto page_count = [](const Printed &printed) { return printed.file.count("/Type /Page\n"); };
        const Printed plain = print({&editor});
        QCOMPARE(page_count(plain), 2);
        QCOMPARE(page_count(print({&editor, nullptr, &other})), 3);
        QVERIFY(print({&editor}, u"Title"_s).file.contains(QByteArrayLiteral("/Title (\xfe\xff\0T\0i\0t\0l\0e)")));
        editor.set_zoom_percent(190);
        editor.check_spelling();
        QCOMPARE(print({&editor}).drawing, plain.drawing);
        editor.print_to(nullptr);

        // Sizes in pixels are as large as on the screen, and lines stand apart by the factor.
        editor.set_html_content(u"a<br>b<p style='font-size:20px; margin-left:96px'>c</p>"_s);
        const auto lines = [&editor] {
            static const QRegularExpression start(u"/F\\d+ (\\d+) Tf.*\\n([\\d.]+) -([\\d.]+) Td"_s);
            QList<QList<double>> sizes_and_places;
            auto matches = start.globalMatch(QString::fromLatin1(print({&editor}).drawing));
            while (matches.hasNext()) {
                const QRegularExpressionMatch match = matches.next();
                sizes_and_places.append(
                    {match.captured(1).toDouble(), match.captured(2).toDouble(), match.captured(3).toDouble()});
            }
            return sizes_and_places;
        };
        const auto before = lines();
        QCOMPARE(before[2][0] / before[0][0], 15.0 / 12);
        QCOMPARE(before[2][1] - before[0][1], 1200.0);
        editor.set_line_spacing(2);
        const auto after = lines();
        QVERIFY(qAbs((after[1][2] - after[0][2]) / (before[1][2] - before[0][2]) - 2) < 0.02);
        QCOMPARE(editor.text_edit->document()->firstBlock().blockFormat().lineHeightType(), 150);
    }

    void prints_pictures_within_the_page()
    {
        CustomTextEditor editor(std::nullopt);
        const QString wide = picture_html(3000, 20);
        editor.set_html_content(wide + u"<p style='margin-left:40px'>"_s + wide + u"</p><ul><li>"_s + wide +
                                u"</li></ul><table><tr><td>"_s + wide + u"</td><td>"_s + wide +
                                u"</td></tr></table>"_s + picture_html(20, 3000) + picture_html(10, 10));
        const Printed printed = print({&editor});
        const double dots_per_pixel = 1200.0 / 96;
        const double margin = 75 * dots_per_pixel;
        static const QRegularExpression drawn(
            u"([\\d.]+) 0 0 ([\\d.]+) (\\d+)[\\d.]* [\\d.]+ cm\\n(\\d+) 0 0 -(\\d+) 0 \\d+ cm /Im"_s);
        auto matches = drawn.globalMatch(QString::fromLatin1(printed.drawing));
        int count = 0;
        for (; matches.hasNext(); ++count) {
            const QRegularExpressionMatch match = matches.next();
            const auto number = [&match](int i) { return match.captured(i).toDouble(); };
            const double width = number(1) * number(4);
            const double height = number(2) * number(5);
            const double right = number(3) + width;
            QVERIFY2(right < printed.page.width() - margin + 1, qPrintable(match.captured()));
            QVERIFY2(height < printed.page.height() - 2 * margin, qPrintable(match.captured()));
            QVERIFY(qAbs(width / height / number(4) * number(5) - 1) < 0.01);
            if (number(4) == 10)
                QVERIFY(qAbs(width - 10 * dots_per_pixel) < 1); // small ones stay as they are
        }
        QCOMPARE(count, 7);
    }
};

MY_CLASSES_TEST_MAIN(TstContent)
#include "tst_content.moc"
