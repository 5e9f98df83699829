// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/spelling_support.h"

#include <QtGui/QInputMethodEvent>

#include <iostream>
#include <stdexcept>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;
using my_spellchecker::MySpellChecker;

namespace {

QString sorted(const QSet<QString> &words)
{
    QStringList list = words.values();
    list.sort();
    return list.join(u' ');
}

QString misspelled(const QString &text)
{
    return sorted(MySpellChecker(u"en_US"_s).check(text));
}

/// This program again, as a process of its own that runs as_child().
struct Child : QProcess
{
    explicit Child(const QStringList &arguments, const QString &variable = u"LC_ALL=C"_s)
    {
        setEnvironment(systemEnvironment() + QStringList(variable));
        setProcessChannelMode(MergedChannels);
        start(QCoreApplication::applicationFilePath(), QStringList(u"--child"_s) + arguments);
    }

    /// Its output, or what went wrong.
    QString result()
    {
        const bool ended = waitForFinished(60'000) && exitStatus() == NormalExit;
        return ended ? QString::fromUtf8(readAll()).trimmed() : errorString();
    }
};

/// "LANG TEXT [WORD...]": what is misspelled in the text after the words have been added.
int as_child(const QStringList &arguments)
{
    try {
        MySpellChecker checker(arguments[0]);
        checker.check(arguments[1]);
        for (const QString &word : arguments.mid(2))
            checker.spell.word_frequency.add(word);
        std::cout << sorted(checker.check(arguments[1])).toStdString() << std::endl;
    } catch (const std::runtime_error &error) {
        std::cout << "error: " << error.what() << std::endl;
    }
    return 0;
}

/// Up to `most` of `parts`, one behind the other.
QString any_of(const QStringList &parts, int most, QRandomGenerator *random)
{
    QString text;
    for (int i = random->bounded(most + 1); i > 0; --i)
        text += parts[random->bounded(parts.size())];
    return text;
}

/// Whether a person can correct the word under the cursor, add it to the dictionary.
QString offers(const CustomTextEditor &editor)
{
    return (editor.correctAction->isEnabled() ? u"correct "_s : QString()) +
           (editor.addWordAction->isEnabled() ? u"add"_s : QString());
}

} // namespace

class TstSpelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void words_of_a_text()
    {
        const std::pair<QString, QString> rows[] = {
            {u" . ' ’ '' - \n\t…"_s, u""_s},
            {u"teh cat, Teh TEH teh."_s, u"TEH Teh teh"_s},
            {u"don't don’t dno't dno’t 'teh' ‘wrod’ dogs' hte''s"_s, u"dno't dno’t hte teh wrod"_s},
            {u"1st teh2 2teh te3h mp3s x٣teh teh'2 q w é z'1"_s, u""_s},
            {u"(jdoe.smth@exmaple.com), <zxcv@localhst> mailto:zxcv @ wrod"_s, u"wrod"_s},
            {u"see https://exmaple.org/zxcv?q=asdfg, www.exmpl.info \"exmaple.com/zxcv\" teh.Wrod"_s, u"Wrod teh"_s},
            {u"/usr/lbi ~/docz ./zxcv C:\\zxcv\\qwrt docz/notez.txt asdf/qwrt/zxcv notez.txt and/orr"_s, u"orr"_s},
            {u"teh-wrod hte—owrd\u2028tjat\u00a0zxq\u3000si\ufffcno"_s, u"hte owrd teh tjat wrod zxq"_s},
            {u"слово 言葉 שלום teh😀wrod 𐐨𐐩𐐪 𝒂"_s, u"teh wrod слово שלום 言葉 𐐨𐐩𐐪"_s},
            {u"zxe\u0301v\u0301 \u0301 a\u0301"_s, u"zxe\u0301v\u0301"_s},
            {u"teh%1wrod %2cat%1"_s.arg(QChar(0xd83d)).arg(QChar(0xde00)), u"teh wrod"_s}, // halves of characters
            {u"teh%1hte"_s.arg(QChar(u'\0')), u"hte teh"_s},
        };
        for (const auto &[text, expected] : rows)
            QCOMPARE(misspelled(text) + u" in: "_s + text, expected + u" in: "_s + text);

        // One paragraph of ten megabytes, words of ten megabytes.
        MySpellChecker checker(u"en_US"_s);
        const QString text = u"teh quick (brown) fox's wrod@exmaple.com "_s.repeated(256'000);
        QCOMPARE(sorted(checker.check(text)), u"teh"_s);
        QCOMPARE(sorted(checker.check(text + u"wrod"_s)), u"teh wrod"_s);
        for (const QChar c : {u'/', u'x'})
            QCOMPARE(sorted(checker.check(QString(10'000'000, c))), QString());
    }

    void language_finds_its_dictionary()
    {
        write_dictionary(u"en_GB"_s, "colour");
        write_dictionary(u"qa_QX"_s, "nothing");
        // The system's locale, the language, a regular expression of what is misspelled.
        const std::tuple<QString, QString, QString> rows[] = {
            {u"C"_s, u"en"_s, u"colour perro perroz"_s},
            {u"en_GB.UTF-8"_s, u"en"_s, u"color perro perroz"_s},
            {u"en_ZA.UTF-8"_s, u"en"_s, u"colour perro perroz"_s}, // no dictionary for that region
            {u"de_DE.UTF-8"_s, u"en"_s, u"colour perro perroz"_s},
            {u"C"_s, u"qa"_s, u"color colour perro perroz"_s},
            {u"en_GB.UTF-8"_s, u"en-US"_s, u"colour perro perroz"_s},
            {u"en_GB.UTF-8"_s, u"es"_s, u"colour perroz"_s},
            {u"C"_s, u"tlh"_s, u"error: .*\"tlh\".*en_US.*es_ES.*"_s},
            {u"C"_s, u"en_XX"_s, u"error: .*\"en_XX\".*en_US.*es_ES.*"_s},
            {u"C"_s, u""_s, u"error: .*\"\".*en_US.*es_ES.*"_s},
            {u"C"_s, u"../../en_US"_s, u"error: .*\"../../en_US\".*en_US.*es_ES.*"_s},
        };
        for (const auto &[system, lang, expected] : rows) {
            const QString result = Child({lang, u"color colour perro perroz"_s}, u"LC_ALL="_s + system).result();
            const QRegularExpression expression(QRegularExpression::anchoredPattern(expected));
            QVERIFY2(expression.match(result).hasMatch(), qPrintable(system + u' ' + lang + u": "_s + result));
        }
    }

    void added_word_holds_everywhere_and_stays()
    {
        const QString text = u"zorblatt Zorblatt ZORBLATT 'zorblatt' dzor't dzor’t zoré zore\u0301"_s;
        MySpellChecker adder(u"en_US"_s);
        MySpellChecker other(u"en-US"_s);
        QCOMPARE(other.check(text).size(), 7);
        for (const QString &word : {u" \tzorblatt\n"_s, u"dzor’t"_s, u"zoré"_s})
            adder.spell.word_frequency.add(word);
        const QString list = word_list_directory() + u"/en_US.dic"_s;
        const QByteArray words = content_of(list);
        QVERIFY2(words.endsWith("zorblatt\ndzor't\nzor\u00e9\n"), words.constData());
        QCOMPARE(sorted(adder.check(text) + other.check(text)), QString());
        QCOMPARE(Child({u"en_US"_s, text}).result(), QString());
        QVERIFY(other.get_suggestions(u"zorblat"_s).contains(u"zorblatt"_s));

        const QString nul = u"a"_s + QChar(u'\0');
        for (const QString &no_word : {u""_s, u" \t\n\u00a0"_s, u"a\nb"_s, nul, u"\xd83d"_s, QString(9'000, u'x')}) {
            adder.spell.word_frequency.add(no_word);
            QVERIFY(adder.get_suggestions(no_word).isEmpty());
        }
        QCOMPARE(content_of(list), words);
    }

    void processes_see_each_others_words_and_lose_none()
    {
        MySpellChecker checker(u"en_US"_s);
        // One behind the other, often within one second of the file's clock.
        for (const QString &word : {u"qotha"_s, u"qothb"_s, u"qothc"_s, u"qothd"_s}) {
            QCOMPARE(sorted(checker.check(word)), word);
            QCOMPARE(Child({u"en_US"_s, word, word}).result(), QString());
            QCOMPARE(sorted(checker.check(word)), QString());
        }
        QStringList words[2];
        for (int i = 0; i < 400; ++i)
            words[i % 2].append(u"qboth"_s + QChar(u'a' + i / 20) + QChar(u'a' + i % 20));
        const QString text = words[0].join(u' ') + u' ' + words[1].join(u' ');
        Child first(QStringList{u"en_US"_s, words[0].join(u' ')} + words[0]);
        Child second(QStringList{u"en_US"_s, words[1].join(u' ')} + words[1]);
        checker.check(text); // while they are at it
        QCOMPARE(first.result() + second.result(), QString());
        QCOMPARE(sorted(checker.check(text)), QString());
        QCOMPARE(Child({u"en_US"_s, text}).result(), QString());

        // A word list that cannot be written: the word holds for the session.
        const QString inside_a_file = QCoreApplication::applicationFilePath() + u"/enchant"_s;
        QCOMPARE(
            Child({u"en_US"_s, u"qlorp Qlorp teh"_s, u"qlorp"_s}, u"ENCHANT_CONFIG_DIR="_s + inside_a_file).result(),
            u"teh"_s);
    }

    void checking_again_equals_a_fresh_check()
    {
        const QStringList parts = u"teh|wrod|cat|don|'|t| | |\n|\n|/|é|a@b.example|7|.|qadd|s|😀|\r\n"_s.split(u'|');
        QRandomGenerator random(2);
        MySpellChecker checker(u"en_US"_s);
        QString text;
        for (int round = 0; round < 2'000; ++round) {
            const qsizetype start = random.bounded(text.size() + 1);
            text.replace(start, random.bounded(std::min<qsizetype>(text.size() - start, 8) + 1),
                         any_of(parts, 6, &random));
            if (round % 500 == 250)
                MySpellChecker(u"en_US"_s).spell.word_frequency.add(u"qadd"_s + QString(round / 500, u's'));
            QCOMPARE(sorted(checker.check(text)), misspelled(text));
        }
    }

    void underlines_equal_the_plain_way()
    {
        const QStringList parts =
            u"a|b|cat|teh|Teh|á|don|'|’|_|1|😀|漢|字|𐐨|e\u0301|ที่|\U0001d165|\u0301|\u200d|-| | |.|\u00ad|\n"_s.split(
                u'|');
        const QStringList signs = u". | ( ) [ ] \\ * {2} \\w+ ?"_s.split(u' ');
        const QStringList few = u"a|'|a'a|’| |e\u0301"_s.split(u'|'); // for matches that touch and overlap
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            const QStringList &some = round % 3 == 0 ? few : parts;
            QSet<QString> words;
            while (words.size() < 6) {
                const QString signs_in_it = any_of(signs, 1, &random) + any_of(parts, 2, &random);
                words.insert(any_of(some, 4, &random) + (random.bounded(4) ? QString() : signs_in_it) +
                             (random.bounded(40) ? QString() : u"\xd83d"_s));
            }
            QTextDocument document;
            document.documentLayout(); // without one Qt tells nobody of edits
            QTextCursor cursor(&document);
            for (int i = 0; i < 12; ++i)
                cursor.insertText(any_of(some, 14, &random) + (random.bounded(20) ? u"\n"_s : u"\xde00 teh\n"_s));
            CustomHighlighter highlighter(&document);
            highlighter.setMisspelled(words);
            for (int step = 0; step < 7; ++step) {
                for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                    QVERIFY2(underlines(block) == plain_underlines(block.text(), words),
                             qPrintable(u"%1 <- %2 at step %3"_s.arg(block.text(), sorted(words)).arg(step)));
                }
                cursor.setPosition(random.bounded(document.characterCount()));
                cursor.setPosition(random.bounded(document.characterCount()), QTextCursor::KeepAnchor);
                if (step == 1)
                    static_cast<QSyntaxHighlighter &>(highlighter).rehighlight();
                else if (step == 3)
                    document.undo();
                else if (step > 3)
                    highlighter.setMisspelled(words = step == 4 ? QSet{any_of(some, 2, &random)} : QSet<QString>());
                else
                    cursor.insertText(any_of(some, 4, &random));
            }
        }
    }

    void a_derived_highlighter_formats_edits()
    {
        struct Derived : CustomHighlighter
        {
            using CustomHighlighter::CustomHighlighter;
            void highlightBlock(const QString &text) override { setFormat(0, static_cast<int>(text.size()), Qt::blue); }
        };
        QTextDocument document;
        document.documentLayout();
        const Derived highlighter(&document);
        QTextCursor(&document).insertText(u"teh"_s);
        QCOMPARE(document.firstBlock().layout()->formats().value(0).format.foreground(), QBrush(Qt::blue));
    }

    void underlining_leaves_composed_text_alone()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        editor.text_edit->setPlainText(u"teh wrod"_s);
        select(editor.text_edit, 4);
        QTextCharFormat dotted;
        dotted.setUnderlineStyle(QTextCharFormat::DotLine);
        QInputMethodEvent compose(u"xyz"_s, {{QInputMethodEvent::TextFormat, 0, 3, dotted}});
        QCoreApplication::sendEvent(editor.text_edit, &compose);
        editor.check_spelling();
        const QTextBlock block = editor.text_edit->document()->firstBlock();
        QCOMPARE(block.layout()->preeditAreaText(), u"xyz"_s);
        QVERIFY(block.layout()->formats().contains(QTextLayout::FormatRange{4, 3, dotted}));
        QCOMPARE(underlines(block), u"^~~    ^~~~"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"x"_s);
        QCoreApplication::sendEvent(editor.text_edit, &commit);
        QCOMPARE(editor.get_text_content(), u"teh xwrod"_s);
        QCOMPARE(underlines(block), u"^~~"_s);
    }

    void first_misspelled_word_is_shown()
    {
        const std::tuple<QString, QString, int> rows[] = {
            {u"good words"_s, u""_s, 5}, // none: the last word
            {u"good words."_s, u""_s, 11},    {u"the Teh"_s, u"Teh"_s, 4},
            {u"  (\"teh\")"_s, u"teh"_s, 7},  {u"I dno't go"_s, u"dno't"_s, 6},
            {u"I dno’t go"_s, u"dno’t"_s, 2}, {u"good\n\n\nwords teh"_s, u"teh"_s, 13},
        };
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        connect(&editor, &CustomTextEditor::check_spelling_done, &editor, &CustomTextEditor::show_first_misspelled);
        show_active(editor);
        for (const auto &[text, word, position] : rows) {
            editor.text_edit->setPlainText(text);
            editor.text_edit->selectAll();
            editor.suggestionsComboBox->setFocus();
            QSignalSpy moved(editor.text_edit, &QTextEdit::cursorPositionChanged);
            const QString lines = standard_output_of([&] { QTest::keyClick(&editor, Qt::Key_F7); });
            const QString list = word.isEmpty() ? u"0 []"_s : u"1 ['%1']"_s.arg(word);
            QCOMPARE(lines, u"Misspelled words: %1\nGoing to first misspelled...\n"_s.arg(list));
            const QTextCursor cursor = editor.text_edit->textCursor();
            QVERIFY2(cursor.position() == position && !cursor.hasSelection(), qPrintable(text));
            QVERIFY(editor.text_edit->hasFocus() && moved.isEmpty());
            QCOMPARE(offers(editor), QString());
            QVERIFY(!editor.word_count_label->text().contains(u"Selected"_s));
            QVERIFY(!editor.clear_formatting_action->isEnabled());
        }
    }

    void person_corrects_and_adds_words()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        editor.text_edit->setHtml(u"We <b><i>teh</i></b> qzxqzxqzxqzx, Teh."_s);
        const QString before = editor.get_text_content();
        const QTextBlock block = editor.text_edit->document()->firstBlock();
        show_active(editor);
        QTest::keyClick(editor.text_edit, Qt::Key_F7);
        QCOMPARE(underlines(block), u"   ^~~ ^~~~~~~~~~~~  ^~~"_s);

        const QStringList suggestions = editor.spellchecker->get_suggestions(u"teh"_s);
        QStringList in_order = suggestions;
        in_order.sort();
        QVERIFY(suggestions.size() > 1 && suggestions.first() != in_order.first());
        const QString lines = standard_output_of([&] { select(editor.text_edit, 4); });
        QCOMPARE(lines, u"Misspelled word: teh\nSuggestions: ['%1']\n"_s.arg(suggestions.join(u"', '"_s)));
        QStringList offered;
        for (int i = 0; i < editor.suggestionsComboBox->count(); ++i)
            offered.append(editor.suggestionsComboBox->itemText(i));
        QCOMPARE(offered, in_order);
        QCOMPARE(editor.suggestionsComboBox->currentText(), suggestions.first());
        QCOMPARE(offers(editor), u"correct "_s);
        editor.correctAction->trigger();
        QCOMPARE(editor.get_text_content(), u"We %1 qzxqzxqzxqzx, Teh."_s.arg(suggestions.first()));
        editor.text_edit->undo();
        QCOMPARE(editor.text_edit->textCursor().position(), 4);

        select(editor.text_edit, 12);
        QCOMPARE(offers(editor), u"add"_s);
        editor.correct_word(); // with nothing to put there
        QCOMPARE(editor.get_text_content(), before);
        QSignalSpy added(&editor, &CustomTextEditor::word_added_to_dictionary);
        QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
        editor.addWordAction->trigger();
        QCOMPARE(added.value(0).value(0).toString(), u"qzxqzxqzxqzx"_s);
        QCOMPARE(sorted(done.value(0).value(0).value<QSet<QString>>()), u"Teh teh"_s);
        QCOMPARE(underlines(block), u"   ^~~               ^~~"_s);
        QCOMPARE(offers(editor), QString());

        select(editor.text_edit, 23); // capitals: in lower case this is in the list
        QCOMPARE(offers(editor), u"correct "_s);
        select(editor.text_edit, 1);
        QCOMPARE(offers(editor), QString());
        QCOMPARE(editor.suggestionsComboBox->count(), 0);

        editor.set_text_content(u"I ‘dno’t’, no"_s);
        editor.check_spelling();
        select(editor.text_edit, 8); // right behind the word
        const QString suggestion = editor.suggestionsComboBox->currentText();
        QVERIFY(!suggestion.isEmpty());
        editor.correct_word();
        QCOMPARE(editor.get_text_content(), u"I ‘%1’, no"_s.arg(suggestion));
    }

    void vanished_dictionary_is_a_clear_error()
    {
        write_dictionary(u"qb_QX"_s, "cat");
        CustomTextEditor editor({}, nullptr, u"qb"_s);
        editor.text_edit->setPlainText(u"teh"_s);
        const QString path = word_list_directory() + u"/hunspell/qb_QX"_s;
        QVERIFY(QFile::remove(path + u".dic"_s) && QFile::remove(path + u".aff"_s));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, editor.spellchecker->check(u"teh"_s));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, editor.spellchecker->get_suggestions(u"teh"_s));
        for (const auto action : {&CustomTextEditor::check_spelling, &CustomTextEditor::add_word_to_dictionary}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"qb_QX"_s));
            (editor.*action)();
            QVERIFY(!editor.text_edit->signalsBlocked());
        }
        QCOMPARE(editor.get_text_content(), u"teh"_s);
        write_dictionary(u"qb_QX"_s, "cat"); // and it is back
        QCOMPARE(sorted(editor.spellchecker->check(u"teh cat"_s)), u"teh"_s);
    }

    void clearing_highlights_keeps_other_formats()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        editor.text_edit->setHtml(u"<b style='background:yellow'>teh</b>"_s);
        editor.check_spelling();
        editor.search_results = {1, 2};
        editor.current_search_index = 1;
        select(editor.text_edit, 2);
        editor.clear_highlights();
        QVERIFY(editor.search_results.isEmpty() && editor.current_search_index == -1);
        const QTextCursor cursor = editor.text_edit->textCursor();
        QCOMPARE(cursor.position(), 2);
        QVERIFY(cursor.charFormat().background() == Qt::transparent && cursor.charFormat().fontWeight() == QFont::Bold);
        QCOMPARE(underlines(cursor.block()), u"^~~"_s);
    }
};

int main(int argc, char *argv[])
{
    if (argc > 2 && QLatin1StringView(argv[1]) == "--child"_L1) {
        QCoreApplication application(argc, argv);
        return as_child(application.arguments().mid(2));
    }
    const PrivateHome home;
    QApplication application(argc, argv);
    TstSpelling test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_spelling.moc"
