// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>
#include <my_classes/my_spellchecker.h>

#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QAction>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QComboBox>

#include <iostream>
#include <stdexcept>

using namespace Qt::StringLiterals;
using my_classes::CustomHighlighter;
using my_classes::CustomTextEditor;
using my_spellchecker::MySpellChecker;

namespace {

using Ranges = QList<std::pair<int, int>>; // starts and lengths

QString sorted(const QSet<QString> &words)
{
    QStringList list = words.values();
    list.sort();
    return list.join(u' ');
}

/// A dictionary of Enchant's own format in `directory`, which holds `words` and suggests by single letters.
void write_dictionary(const QString &directory, const QString &tag, const QStringList &words)
{
    QDir().mkpath(directory);
    QFile affixes(directory + u'/' + tag + u".aff"_s);
    QVERIFY(affixes.open(QIODevice::WriteOnly));
    affixes.write("SET UTF-8\nTRY abcdefghijklmnopqrstuvwxyz\n");
    QFile list(directory + u'/' + tag + u".dic"_s);
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write(QByteArray::number(words.size()) + '\n' + words.join(u'\n').toUtf8() + '\n');
}

QString word_list_directory()
{
    return qEnvironmentVariable("ENCHANT_CONFIG_DIR");
}

/// This program again, with what it is to do as a process of its own; see as_child().
class Child
{
public:
    explicit Child(const QStringList &arguments, const QMap<QString, QString> &variables = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"LANG"_s, u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_NUMERIC"_s})
            environment.remove(name);
        for (auto it = variables.begin(); it != variables.end(); ++it)
            environment.insert(it.key(), it.value());
        m_process.setProcessEnvironment(environment);
        m_process.start(QCoreApplication::applicationFilePath(), QStringList(u"--child"_s) + arguments);
    }

    /// Its standard output, without the last line feed, or what went wrong.
    QString result()
    {
        if (!m_process.waitForFinished(60'000) || m_process.exitStatus() != QProcess::NormalExit)
            return u"did not end: "_s + m_process.errorString();
        const QByteArray errors = m_process.readAllStandardError();
        return QString::fromUtf8(m_process.readAllStandardOutput() + errors).trimmed();
    }

private:
    QProcess m_process;
};

/// The child's side: "check LANG TEXT" and "add LANG WORD TEXT" write what is misspelled in the text, the latter
/// after adding the word; "add_many LANG PREFIX" adds two hundred words.
int as_child(const QStringList &arguments)
{
    try {
        MySpellChecker checker(arguments[1]);
        QString text = arguments[2];
        if (arguments[0] == "add"_L1) {
            checker.check(arguments[3]);
            checker.spell.word_frequency.add(arguments[2]);
            text = arguments[3];
        }
        for (int i = 0; arguments[0] == "add_many"_L1 && i < 200; ++i)
            checker.spell.word_frequency.add(arguments[2] + QChar(u'a' + i / 15) + QChar(u'a' + i % 15));
        std::cout << sorted(checker.check(text)).toStdString() << std::endl;
        return 0;
    } catch (const std::runtime_error &error) {
        std::cout << "error: " << error.what() << std::endl;
        return 1;
    }
}

/// What the plain way underlines: one expression for each word, the format set on each of its matches.
Ranges plain_ranges(const QString &text, const QSet<QString> &words)
{
    QList<bool> underlined(text.size(), false);
    for (const QString &word : words) {
        const QRegularExpression expression(u"\\b"_s + word + u"\\b"_s, QRegularExpression::UseUnicodePropertiesOption);
        if (!expression.isValid())
            continue;
        for (auto matches = expression.globalMatch(text); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            std::fill_n(underlined.begin() + match.capturedStart(), match.capturedLength(), true);
        }
    }
    Ranges ranges;
    for (int i = 0; i < text.size(); ++i) {
        if (underlined[i] && i > 0 && underlined[i - 1])
            ++ranges.last().second;
        else if (underlined[i])
            ranges.append({i, 1});
    }
    return ranges;
}

Ranges ranges_of(const QTextBlock &block, int underline = QTextCharFormat::SpellCheckUnderline)
{
    Ranges ranges;
    for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
        if (range.format.underlineStyle() == underline)
            ranges.append({range.start, range.length});
    }
    return ranges;
}

/// Up to `most` of `parts`, one behind the other.
QString any_of(const QStringList &parts, int most, QRandomGenerator *random)
{
    QString text;
    for (int i = random->bounded(most + 1); i > 0; --i)
        text += parts[random->bounded(parts.size())];
    return text;
}

void put_cursor(CustomTextEditor *editor, int position)
{
    QTextCursor cursor = editor->text_edit->textCursor();
    cursor.setPosition(position);
    editor->text_edit->setTextCursor(cursor);
}

QStringList items(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

} // namespace

class TstSpelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }
    void words_of_a_text_data();
    void words_of_a_text();
    void ten_megabytes_in_one_paragraph();
    void language_finds_its_dictionary_data();
    void language_finds_its_dictionary();
    void added_word_holds_everywhere_and_stays();
    void unwritable_word_list_holds_for_the_session();
    void processes_that_add_together_lose_no_word();
    void word_added_by_another_process_counts();
    void checking_again_equals_a_fresh_check();
    void underlines_equal_the_plain_way();
    void underlines_follow_edits();
    void underlining_leaves_composed_text_alone();
    void first_misspelled_word_is_shown_data();
    void first_misspelled_word_is_shown();
    void person_corrects_and_adds_words();
    void word_under_cursor_offers_suggestions_data();
    void word_under_cursor_offers_suggestions();
    void vanished_dictionary_is_a_clear_error();
    void clearing_highlights_keeps_other_formats();
};

void TstSpelling::words_of_a_text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("misspelled");
    QTest::newRow("none") << u""_s << u""_s;
    QTest::newRow("punctuation only") << u" . ' ’ '' - \n\t…"_s << u""_s;
    QTest::newRow("distinct, as written") << u"teh cat, Teh TEH teh."_s << u"TEH Teh teh"_s;
    QTest::newRow("inner apostrophes") << u"don't don’t dno't dno’t"_s << u"dno't dno’t"_s;
    QTest::newRow("outer apostrophes") << u"'teh' ‘wrod’ dogs' hte''s"_s << u"hte teh wrod"_s;
    QTest::newRow("digits") << u"1st teh2 2teh te3h mp3s x٣teh teh'2"_s << u""_s;
    QTest::newRow("single letters") << u"q w é z'1"_s << u""_s;
    QTest::newRow("e-mail") << u"(jdoe.smth@exmaple.com), <zxcv@localhst> mailto:zxcv @ wrod"_s << u"wrod"_s;
    QTest::newRow("web") << u"see https://exmaple.org/zxcv?q=asdfg, www.exmpl.info \"exmaple.com/zxcv\" teh.Wrod"_s
                         << u"Wrod teh"_s;
    QTest::newRow("paths") << u"/usr/lbi ~/docz ./zxcv C:\\zxcv\\qwrt docz/notez.txt asdf/qwrt/zxcv notez.txt and/orr"_s
                           << u"orr"_s;
    QTest::newRow("separators") << u"teh-wrod hte—owrd\u2028tjat\u00a0zxq\u3000si\ufffcno"_s
                                << u"hte owrd teh tjat wrod zxq"_s;
    QTest::newRow("scripts") << u"слово 言葉 שלום"_s << u"слово שלום 言葉"_s;
    QTest::newRow("beyond 16 bits") << u"teh😀wrod 𐐨𐐩𐐪 𝒂"_s << u"teh wrod 𐐨𐐩𐐪"_s;
    QTest::newRow("half characters") << u"teh"_s + QChar(0xd83d) + u"wrod "_s + QChar(0xde00) + u"cat"_s + QChar(0xd83d)
                                     << u"teh wrod"_s;
    QTest::newRow("decomposed") << u"zxe\u0301v\u0301 \u0301 a\u0301"_s << u"zxe\u0301v\u0301"_s;
    QTest::newRow("nul") << u"teh"_s + QChar(u'\0') + u"wrod"_s << u"teh wrod"_s;
    QTest::newRow("long run") << u"teh "_s + QString(100'000, u'x') + u" wrod"_s << u"teh wrod"_s;
}

void TstSpelling::words_of_a_text()
{
    QFETCH(QString, text);
    QFETCH(QString, misspelled);
    QCOMPARE(sorted(MySpellChecker(u"en_US"_s).check(text)), misspelled);
}

void TstSpelling::ten_megabytes_in_one_paragraph()
{
    MySpellChecker checker(u"en_US"_s);
    const QString text = u"teh quick (brown) fox's wrod@exmaple.com "_s.repeated(256'000);
    QCOMPARE(sorted(checker.check(text)), u"teh"_s);
    QCOMPARE(sorted(checker.check(text + u"wrod"_s)), u"teh wrod"_s);
    QCOMPARE(sorted(checker.check(QString(10'000'000, u'/'))), QString());
}

void TstSpelling::language_finds_its_dictionary_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QString>("misspelled"); // of "color colour perro perroz", or parts of an error
    QTest::newRow("usual region") << u"C"_s << u"en"_s << u"colour perro perroz"_s;
    QTest::newRow("system's region") << u"en_GB.UTF-8"_s << u"en"_s << u"color perro perroz"_s;
    QTest::newRow("system's region has none") << u"en_ZA.UTF-8"_s << u"en"_s << u"colour perro perroz"_s;
    QTest::newRow("system speaks another") << u"de_DE.UTF-8"_s << u"en"_s << u"colour perro perroz"_s;
    QTest::newRow("any region") << u"C"_s << u"qa"_s << u"color colour perro perroz"_s;
    QTest::newRow("hyphen") << u"en_GB.UTF-8"_s << u"en-US"_s << u"colour perro perroz"_s;
    QTest::newRow("underscore") << u"en_GB.UTF-8"_s << u"en_US"_s << u"colour perro perroz"_s;
    QTest::newRow("Spanish") << u"en_GB.UTF-8"_s << u"es"_s << u"colour perroz"_s;
    QTest::newRow("unknown") << u"C"_s << u"tlh"_s << u"error: \"tlh\" en_US es_ES"_s;
    QTest::newRow("unknown region") << u"C"_s << u"en_XX"_s << u"error: \"en_XX\" en_US es_ES"_s;
    QTest::newRow("empty") << u"C"_s << u""_s << u"error: \"\" en_US es_ES"_s;
    QTest::newRow("no name at all") << u"C"_s << u"../../en_US"_s << u"error: \"../../en_US\" en_US"_s;
}

void TstSpelling::language_finds_its_dictionary()
{
    QFETCH(QString, locale);
    QFETCH(QString, lang);
    QFETCH(QString, misspelled);
    const QString more = word_list_directory() + u"/hunspell"_s;
    write_dictionary(more, u"en_GB"_s, {u"colour"_s});
    write_dictionary(more, u"qa_QX"_s, {u"nothing"_s});
    const QString result = Child({u"check"_s, lang, u"color colour perro perroz"_s}, {{u"LANG"_s, locale}}).result();
    if (misspelled.startsWith(u"error:"_s)) {
        for (const QString &part : misspelled.split(u' '))
            QVERIFY2(result.contains(part), qPrintable(result));
    } else {
        QCOMPARE(result, misspelled);
    }
}

void TstSpelling::added_word_holds_everywhere_and_stays()
{
    const QString text = u"zorblatt Zorblatt ZORBLATT 'zorblatt' dzor't dzor’t zoré zore\u0301"_s;
    MySpellChecker adder(u"en_US"_s);
    MySpellChecker other(u"en-US"_s);
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    editor.text_edit->setPlainText(text);
    QCOMPARE(other.check(text).size(), 7);

    for (const QString &word : {u" \tzorblatt\n"_s, u"dzor’t"_s, u"zoré"_s})
        adder.spell.word_frequency.add(word);
    QFile list(word_list_directory() + u"/en_US.dic"_s);
    QVERIFY(list.open(QIODevice::ReadOnly));
    const QByteArray words = list.readAll();
    QVERIFY2(words.endsWith(QByteArray("zorblatt\ndzor't\nzor\u00e9\n")), words.constData());
    QCOMPARE(sorted(adder.check(text)), QString());
    QCOMPARE(sorted(other.check(text)), QString());
    QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
    editor.check_spelling();
    QCOMPARE(done.value(0).value(0).value<QSet<QString>>(), QSet<QString>{});
    QCOMPARE(Child({u"check"_s, u"en_US"_s, text}).result(), QString());
    QVERIFY(other.get_suggestions(u"zorblat"_s).contains(u"zorblatt"_s));

    const QString half = QString(QChar(0xd83d));
    for (const QString &no_word :
         {u""_s, u" \t\n\u00a0"_s, u"a\nb"_s, u"a"_s + QChar(u'\0'), half, QString(9'000, u'x')}) {
        adder.spell.word_frequency.add(no_word);
        QVERIFY(adder.get_suggestions(no_word).isEmpty());
    }
    list.seek(0);
    QCOMPARE(list.readAll(), words);
}

void TstSpelling::unwritable_word_list_holds_for_the_session()
{
    QTemporaryFile not_a_directory;
    QVERIFY(not_a_directory.open());
    const QMap<QString, QString> variables{{u"ENCHANT_CONFIG_DIR"_s, not_a_directory.fileName() + u"/enchant"_s}};
    QCOMPARE(Child({u"add"_s, u"en_US"_s, u"qlorp"_s, u"qlorp Qlorp teh"_s}, variables).result(), u"teh"_s);
}

void TstSpelling::processes_that_add_together_lose_no_word()
{
    Child first({u"add_many"_s, u"en_US"_s, u"qfirst"_s});
    Child second({u"add_many"_s, u"en_US"_s, u"qsecond"_s});
    QString text;
    for (int i = 0; i < 200; ++i) {
        const QString ending = QString(QChar(u'a' + i / 15)) + QChar(u'a' + i % 15);
        text += u"qfirst%1 qsecond%1 "_s.arg(ending);
    }
    MySpellChecker checker(u"en_US"_s);
    checker.check(text); // while they are at it
    QCOMPARE(first.result(), u"qfirst"_s);
    QCOMPARE(second.result(), u"qsecond"_s);
    QCOMPARE(sorted(checker.check(text)), QString());
    QCOMPARE(Child({u"check"_s, u"en_US"_s, text}).result(), QString());
}

void TstSpelling::word_added_by_another_process_counts()
{
    MySpellChecker checker(u"en_US"_s);
    // One behind the other, often within one second of the file's clock.
    for (const QString &word : {u"qotha"_s, u"qothb"_s, u"qothc"_s, u"qothd"_s}) {
        QCOMPARE(sorted(checker.check(word)), word);
        QCOMPARE(Child({u"add"_s, u"en_US"_s, word, word}).result(), QString());
        QCOMPARE(sorted(checker.check(word)), QString());
    }
}

void TstSpelling::checking_again_equals_a_fresh_check()
{
    const QStringList parts = u"teh|wrod|cat|don|'|t| | |\n|\n|/|é|a@b.example|7|.|qadd|s|😀|\r\n"_s.split(u'|');
    QRandomGenerator random(2);
    MySpellChecker checker(u"en_US"_s);
    QString text;
    for (int round = 0; round < 2'000; ++round) {
        const qsizetype start = random.bounded(text.size() + 1);
        text.replace(start, random.bounded(std::min<qsizetype>(text.size() - start, 8) + 1), any_of(parts, 6, &random));
        if (round % 500 == 250)
            MySpellChecker(u"en_US"_s).spell.word_frequency.add(u"qadd"_s + QString(round / 500, u's'));
        QCOMPARE(sorted(checker.check(text)), sorted(MySpellChecker(u"en_US"_s).check(text)));
    }
}

void TstSpelling::underlines_equal_the_plain_way()
{
    const QStringList parts =
        u"a|b|cat|teh|est|á|don|'|’|_|1|😀|漢|字|𐐨|e\u0301|हिन्दी|\u0301|\u200d|-| | |.|\u00ad"_s.split(u'|');
    const QStringList signs = u". | ( ) [ ] \\ * {2} \\w+ ?"_s.split(u' ');
    const QStringList few = u"a|'|a'a|’| |e\u0301"_s.split(u'|'); // for matches that touch and overlap
    QRandomGenerator random(1);
    for (int round = 0; round < 300; ++round) {
        const QStringList &some = round % 3 == 0 ? few : parts;
        QSet<QString> words;
        while (words.size() < 6) {
            QString word = any_of(some, 4, &random);
            if (random.bounded(4) == 0)
                word += any_of(signs, 1, &random) + any_of(parts, 2, &random);
            if (random.bounded(40) == 0)
                word += QChar(0xd83d);
            words.insert(word);
        }
        QTextDocument document;
        QTextCursor cursor(&document);
        for (int i = 0; i < 12; ++i) {
            cursor.insertText(any_of(some, 14, &random));
            if (random.bounded(20) == 0)
                cursor.insertText(QChar(0xde00) + u" teh"_s);
            cursor.insertBlock();
        }
        CustomHighlighter highlighter(&document);
        highlighter.setMisspelled(words);
        for (const bool by_block : {false, true}) {
            if (by_block)
                static_cast<QSyntaxHighlighter &>(highlighter).rehighlight();
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                QVERIFY2(ranges_of(block) == plain_ranges(block.text(), words),
                         qPrintable(block.text() + u" <- "_s + sorted(words)));
            }
        }
    }
}

void TstSpelling::underlines_follow_edits()
{
    QTextDocument document;
    document.documentLayout(); // without one Qt tells nobody of edits
    document.setHtml(u"<b>teh</b> tehran Teh teh. concatteh"_s);
    CustomHighlighter highlighter(&document);
    QVERIFY(highlighter.misspelled.isEmpty());
    highlighter.setMisspelled({u"teh"_s});
    const QTextBlock block = document.firstBlock();
    QCOMPARE(ranges_of(block), (Ranges{{0, 3}, {15, 3}}));
    QTextCharFormat underline;
    underline.setUnderlineColor(Qt::red);
    underline.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    QCOMPARE(block.layout()->formats().first().format, underline);

    QTextCursor cursor(&document);
    cursor.setPosition(3);
    cursor.insertText(u"n"_s);
    QCOMPARE(ranges_of(block), (Ranges{{16, 3}}));
    document.undo();
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(u"\nteh"_s);
    QCOMPARE(ranges_of(block), (Ranges{{0, 3}, {15, 3}}));
    QCOMPARE(ranges_of(block.next()), (Ranges{{0, 3}}));
    highlighter.setMisspelled({});
    QCOMPARE(ranges_of(block) + ranges_of(block.next()), Ranges{});
    QCOMPARE(highlighter.misspelled, QSet<QString>{});
}

void TstSpelling::underlining_leaves_composed_text_alone()
{
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    editor.text_edit->setPlainText(u"teh wrod"_s);
    put_cursor(&editor, 4);
    QTextCharFormat dotted;
    dotted.setUnderlineStyle(QTextCharFormat::DotLine);
    QInputMethodEvent compose(u"xyz"_s, {{QInputMethodEvent::TextFormat, 0, 3, dotted}});
    QCoreApplication::sendEvent(editor.text_edit, &compose);
    editor.check_spelling();
    const QTextBlock block = editor.text_edit->document()->firstBlock();
    QCOMPARE(block.layout()->preeditAreaText(), u"xyz"_s);
    QCOMPARE(ranges_of(block, QTextCharFormat::DotLine), (Ranges{{4, 3}}));
    QCOMPARE(ranges_of(block), (Ranges{{0, 3}, {7, 4}}));
    QInputMethodEvent commit;
    commit.setCommitString(u"x"_s);
    QCoreApplication::sendEvent(editor.text_edit, &commit);
    QCOMPARE(editor.text_edit->toPlainText(), u"teh xwrod"_s);
    QCOMPARE(ranges_of(block), (Ranges{{0, 3}}));
}

void TstSpelling::first_misspelled_word_is_shown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("misspelled");
    QTest::addColumn<int>("position");
    QTest::newRow("none, the last word") << u"good words"_s << u""_s << 5;
    QTest::newRow("none, the end") << u"good words."_s << u""_s << 11;
    QTest::newRow("first") << u"teh cat"_s << u"teh"_s << 0;
    QTest::newRow("case") << u"the Teh"_s << u"Teh"_s << 4;
    QTest::newRow("behind signs") << u"  (\"teh\")"_s << u"teh"_s << 7;
    QTest::newRow("apostrophe") << u"I dno't go"_s << u"dno't"_s << 6;
    QTest::newRow("typographic apostrophe") << u"I dno’t go"_s << u"dno’t"_s << 2;
    QTest::newRow("paragraphs") << u"good\n\n\nwords teh"_s << u"teh"_s << 13;
}

void TstSpelling::first_misspelled_word_is_shown()
{
    QFETCH(QString, text);
    QFETCH(QString, misspelled);
    QFETCH(int, position);
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    connect(&editor, &CustomTextEditor::check_spelling_done, &editor, &CustomTextEditor::show_first_misspelled);
    editor.text_edit->setPlainText(text);
    put_cursor(&editor, static_cast<int>(text.size()));
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    editor.text_edit->setFocus();
    QSignalSpy moved(editor.text_edit, &QTextEdit::cursorPositionChanged);
    QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
    const QString lines = test_support::standard_output_of([&] { QTest::keyClick(editor.text_edit, Qt::Key_F7); });
    const QString list = misspelled.isEmpty() ? u"0 []"_s : u"1 ['%1']"_s.arg(misspelled);
    QCOMPARE(lines, u"Misspelled words: %1\nGoing to first misspelled...\n"_s.arg(list));
    QCOMPARE(sorted(done.value(0).value(0).value<QSet<QString>>()), misspelled);
    QCOMPARE(editor.text_edit->textCursor().position(), position);
    QVERIFY(!editor.text_edit->textCursor().hasSelection());
    QVERIFY(editor.text_edit->hasFocus());
    QCOMPARE(moved.size(), 0);
    QVERIFY(!editor.correctAction->isEnabled() && !editor.addWordAction->isEnabled());
}

void TstSpelling::person_corrects_and_adds_words()
{
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    QTextDocument *document = editor.text_edit->document();
    const QString unknown = u"qzxqzxqzxqzx"_s;
    QVERIFY(editor.spellchecker->get_suggestions(unknown).isEmpty());
    editor.text_edit->setHtml(u"We <b><i>teh</i></b> %1, Teh."_s.arg(unknown));
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    QTest::keyClick(editor.text_edit, Qt::Key_F7);
    QCOMPARE(ranges_of(document->firstBlock()).size(), 3);

    const QStringList suggestions = editor.spellchecker->get_suggestions(u"teh"_s);
    QStringList in_order = suggestions;
    in_order.sort();
    QVERIFY(suggestions.size() > 1 && suggestions.first() != in_order.first());
    const QString lines = test_support::standard_output_of([&] { put_cursor(&editor, 4); });
    QCOMPARE(lines, u"Misspelled word: teh\nSuggestions: ['%1']\n"_s.arg(suggestions.join(u"', '"_s)));
    QCOMPARE(items(editor.suggestionsComboBox), in_order);
    QCOMPARE(editor.suggestionsComboBox->currentText(), suggestions.first());
    QVERIFY(editor.correctAction->isEnabled() && !editor.addWordAction->isEnabled());

    const QString before = editor.get_text_content();
    QCOMPARE(test_support::standard_output_of([&] { editor.correctAction->trigger(); }).section(u'\n', 0, 0),
             u"Correcting misspelled word..."_s);
    QCOMPARE(editor.get_text_content(), u"We %1 %2, Teh."_s.arg(suggestions.first(), unknown));
    QVERIFY(editor.get_html_content().contains(suggestions.first() + u"</span> "_s));
    QCOMPARE(ranges_of(document->firstBlock()).size(), 2);
    document->undo();
    QCOMPARE(editor.get_text_content(), before);
    QVERIFY(!document->isUndoAvailable());

    put_cursor(&editor, 12);
    QVERIFY(!editor.correctAction->isEnabled() && editor.addWordAction->isEnabled());
    QCOMPARE(editor.suggestionsComboBox->count(), 0);
    editor.correct_word(); // with nothing to put there
    QCOMPARE(editor.get_text_content(), before);
    QSignalSpy added(&editor, &CustomTextEditor::word_added_to_dictionary);
    QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
    editor.addWordAction->trigger();
    QCOMPARE(added.value(0).value(0).toString(), unknown);
    QCOMPARE(sorted(done.value(0).value(0).value<QSet<QString>>()), u"Teh teh"_s);
    QCOMPARE(ranges_of(document->firstBlock()).size(), 2);
    QVERIFY(!editor.correctAction->isEnabled() && !editor.addWordAction->isEnabled());

    put_cursor(&editor, static_cast<int>(before.size()) - 2); // capitals: in lower case this is in the list
    QVERIFY(editor.correctAction->isEnabled());
    put_cursor(&editor, 1);
    QVERIFY(!editor.correctAction->isEnabled() && !editor.addWordAction->isEnabled());
    QCOMPARE(editor.suggestionsComboBox->count(), 0);
}

void TstSpelling::word_under_cursor_offers_suggestions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("word");
    const QString quoted = u"x 'dno't' dno’t, teh. x  y"_s;
    QTest::newRow("before") << quoted << 3 << u"dno't"_s;
    QTest::newRow("before the apostrophe") << quoted << 6 << u"dno't"_s;
    QTest::newRow("behind the apostrophe") << quoted << 7 << u"dno't"_s;
    QTest::newRow("behind") << quoted << 8 << u"dno't"_s;
    QTest::newRow("typographic") << quoted << 12 << u"dno’t"_s;
    QTest::newRow("before a comma") << quoted << 15 << u"dno’t"_s;
    QTest::newRow("before a full stop") << quoted << 20 << u"teh"_s;
    QTest::newRow("behind a full stop") << quoted << 21 << u""_s;
    QTest::newRow("typographic quotes") << u"“teh” ‘dno’t’—teh…"_s << 3 << u"teh"_s;
    QTest::newRow("closing quote") << u"“teh” ‘dno’t’—teh…"_s << 12 << u"dno’t"_s;
    QTest::newRow("between signs") << u"“teh” ‘dno’t’—teh…"_s << 13 << u""_s;
    QTest::newRow("dash and ellipsis") << u"“teh” ‘dno’t’—teh…"_s << 17 << u"teh"_s;
    QTest::newRow("between blanks") << u"x  teh"_s << 2 << u""_s;
    QTest::newRow("between blanks behind it") << u"teh  x"_s << 4 << u""_s;
    QTest::newRow("end of the document") << u"x\nteh"_s << 5 << u"teh"_s;
    QTest::newRow("next paragraph") << u"teh\n"_s << 4 << u""_s;
    QTest::newRow("capitals are not offered any") << u"Dno’tt"_s << 2 << u""_s;
}

void TstSpelling::word_under_cursor_offers_suggestions()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QFETCH(QString, word);
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    editor.text_edit->setPlainText(text);
    editor.highlighter->setMisspelled({u"dno't"_s, u"dno’t"_s, u"teh"_s, u"Dno’tt"_s});
    put_cursor(&editor, position);
    const QString lines = test_support::standard_output_of([&] { editor.update_suggestions(); });
    QCOMPARE(lines.section(u'\n', 0, 0), word.isEmpty() ? QString() : u"Misspelled word: "_s + word);
    if (word.isEmpty())
        return;
    const QString suggestion = editor.suggestionsComboBox->currentText();
    QVERIFY(!suggestion.isEmpty());
    const qsizetype start = text.lastIndexOf(word, position);
    editor.correct_word();
    QCOMPARE(editor.get_text_content(), text.replace(start, word.size(), suggestion));
}

void TstSpelling::vanished_dictionary_is_a_clear_error()
{
    const QString directory = word_list_directory() + u"/hunspell"_s;
    write_dictionary(directory, u"qb_QX"_s, {u"cat"_s});
    CustomTextEditor editor({}, nullptr, u"qb"_s);
    editor.text_edit->setPlainText(u"teh"_s);
    QVERIFY(QFile::remove(directory + u"/qb_QX.dic"_s) && QFile::remove(directory + u"/qb_QX.aff"_s));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, editor.spellchecker->check(u"teh"_s));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, editor.spellchecker->get_suggestions(u"teh"_s));
    for (const bool blocked : {true, false}) {
        editor.text_edit->blockSignals(blocked);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"qb_QX"_s));
        editor.check_spelling();
        QCOMPARE(editor.text_edit->signalsBlocked(), blocked);
    }
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"qb_QX"_s));
    editor.add_word_to_dictionary();
    QCOMPARE(editor.get_text_content(), u"teh"_s);
    write_dictionary(directory, u"qb_QX"_s, {u"cat"_s}); // and it is back
    QCOMPARE(sorted(editor.spellchecker->check(u"teh cat"_s)), u"teh"_s);
}

void TstSpelling::clearing_highlights_keeps_other_formats()
{
    CustomTextEditor editor({}, nullptr, u"en_US"_s);
    editor.text_edit->setHtml(u"<p>x <b style='background:yellow'>teh</b></p><p style='background:#ff0'>"
                              "<u><span style='background:yellow'>y</span></u></p>"_s);
    editor.check_spelling();
    editor.search_results = {1, 2};
    editor.current_search_index = 1;
    put_cursor(&editor, 3);
    editor.clear_highlights();
    QVERIFY(editor.search_results.isEmpty());
    QCOMPARE(editor.current_search_index, -1);
    QTextCursor cursor = editor.text_edit->textCursor();
    QCOMPARE(cursor.position(), 3);
    QVERIFY(cursor.charFormat().fontWeight() == QFont::Bold);
    for (const int position : {1, 3, 7}) {
        cursor.setPosition(position);
        QCOMPARE(cursor.charFormat().background().color(), QColor(Qt::transparent));
    }
    QVERIFY(cursor.charFormat().fontUnderline());
    QCOMPARE(ranges_of(editor.text_edit->document()->firstBlock()).size(), 1);
}

int main(int argc, char *argv[])
{
    if (argc > 2 && QLatin1StringView(argv[1]) == "--child"_L1) {
        QCoreApplication application(argc, argv);
        return as_child(application.arguments().mid(2));
    }
    const test_support::PrivateHome home;
    QApplication application(argc, argv);
    TstSpelling test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_spelling.moc"
