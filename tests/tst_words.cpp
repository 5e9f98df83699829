// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/spelling_support.h"

#include <stdexcept>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;
using my_spellchecker::MySpellChecker;

namespace {

/// The word at a position of the text.
QTextCursor word_at(const CustomTextEditor &editor, int position)
{
    QTextCursor cursor = editor.text_edit->textCursor();
    cursor.setPosition(position);
    return editor.word_at(cursor);
}

} // namespace

class TstWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void host_finds_and_judges_words()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        editor.resize(900, 500);
        show_active(editor);
        editor.text_edit->setPlainText(u"I saw dno't, \n\nthe end. "_s +
                                       QString(4'000, u'x').replace(u"xxx"_s, u"xx "_s));
        QCOMPARE(word_at(editor, 8).selectedText(), u"dno't"_s);
        QVERIFY(!word_at(editor, 13).hasSelection());
        QVERIFY(!editor.word_at(QTextCursor()).hasSelection());
        for (const bool scrolled : {false, true}) {
            const QTextCursor word = word_at(editor, scrolled ? 3'900 : 8);
            editor.text_edit->setTextCursor(word);
            editor.text_edit->ensureCursorVisible();
            QCOMPARE(scrolled, editor.text_edit->verticalScrollBar()->value() > 0);
            const QPoint inside = editor.text_edit->cursorRect().center() - QPoint(4, 0);
            QCOMPARE(editor.word_at_point(inside).selectedText(), word.selectedText());
            QVERIFY(!editor.word_at_point(QPoint(editor.text_edit->viewport()->width() - 1, 10)).hasSelection());
        }
        for (const QString &word : {u"teh"_s, u"Teh"_s, u"dno’t"_s}) // before any check
            QVERIFY2(editor.is_misspelled(word), qPrintable(word));
        for (const QString &word : {u"the"_s, u"don’t"_s, u"teh wrod"_s, u" teh"_s, u"teh2"_s, u"x"_s, u""_s})
            QVERIFY2(!editor.is_misspelled(word), qPrintable(word));

        QCOMPARE(editor.suggestions_for(u"Teh"_s).value(0), u"The"_s);
        QCOMPARE(editor.suggestions_for(u"TEH"_s).value(0), u"THE"_s);
        QVERIFY(editor.suggestions_for(u"Londn"_s).contains(u"London"_s));
        QCOMPARE(editor.suggestions_for(u"Qzxqzxqzxqzx"_s), QStringList());
        QCOMPARE(editor.suggestions_for(u""_s), QStringList());
    }

    void host_replaces_a_word()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        editor.text_edit->setHtml(u"See <b>Teh</b> cat"_s);
        const QString before = editor.get_html_content();
        const QString after = QString(before).replace(u"Teh"_s, u"The"_s);
        const QTextCursor word = word_at(editor, 5);
        editor.text_edit->setReadOnly(true);
        editor.replace_word(word, u"The"_s);
        QCOMPARE(editor.get_html_content(), before);
        editor.text_edit->setReadOnly(false);
        select(editor.text_edit, 7); // right behind it
        editor.replace_word(word, u"The"_s);
        QCOMPARE(editor.get_html_content(), after);
        QTest::keyClicks(editor.text_edit, u"ir"_s);
        editor.text_edit->undo();
        QCOMPARE(editor.get_html_content(), after);
        editor.text_edit->undo();
        QCOMPARE(editor.get_html_content(), before);
        QVERIFY(!editor.text_edit->document()->isUndoAvailable());

        QTextDocument other(u"Teh"_s);
        QTextCursor foreign(&other);
        foreign.select(QTextCursor::Document);
        for (const QTextCursor &no_word : {foreign, QTextCursor(), editor.text_edit->textCursor()})
            editor.replace_word(no_word, u""_s);
        QCOMPARE(other.toPlainText(), u"Teh"_s);
        editor.replace_word(word_at(editor, 5), u""_s);
        QCOMPARE(editor.get_text_content(), u"See  cat"_s);
    }

    void added_and_ignored_words_lose_their_underlines()
    {
        CustomTextEditor editor({}, nullptr, u"en_US"_s);
        CustomTextEditor other({}, nullptr, u"en_US"_s);
        editor.text_edit->setPlainText(u"qignor Qignor qadder QADDER teh"_s);
        editor.check_spelling();
        const QTextBlock block = editor.text_edit->document()->firstBlock();
        QCOMPARE(underlines(block), u"^~~~~~ ^~~~~~ ^~~~~~ ^~~~~~ ^~~"_s);
        editor.text_edit->document()->setModified(false);
        QSignalSpy edits(editor.text_edit, &QTextEdit::textChanged);
        QSignalSpy added(&editor, &CustomTextEditor::word_added_to_dictionary);
        editor.ignore_word(u"Qignor"_s);
        QCOMPARE(underlines(block), u"              ^~~~~~ ^~~~~~ ^~~"_s);
        editor.add_to_dictionary(u"qadder"_s);
        QCOMPARE(underlines(block), u"                            ^~~"_s);
        QCOMPARE(added.value(0).value(0).toString(), u"qadder"_s);
        editor.add_to_dictionary(u" "_s);
        editor.ignore_word(u""_s);
        QVERIFY(added.size() == 1 && edits.isEmpty() && !editor.text_edit->document()->isModified());

        QVERIFY(!editor.is_misspelled(u"QIGNOR"_s) && other.is_misspelled(u"qignor"_s) &&
                !other.is_misspelled(u"qadder"_s));
        QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
        editor.check_spelling();
        QCOMPARE(done.value(0).value(0).value<QSet<QString>>(), QSet{u"teh"_s});
        QCOMPARE(underlines(block), u"                            ^~~"_s);
    }

    void languages_have_names()
    {
        write_dictionary(u"qa_QX"_s, "nothing");
        QStringList languages = MySpellChecker::installed_languages();
        QVERIFY(languages.contains(u"en_US"_s) && languages.contains(u"es_ES"_s) && languages.contains(u"qa_QX"_s));
        QVERIFY(std::is_sorted(languages.cbegin(), languages.cend()) && languages.removeDuplicates() == 0);
        for (const QString &lang : languages)
            QVERIFY(MySpellChecker::is_available(lang) && !MySpellChecker::language_name(lang).isEmpty());
        QVERIFY(MySpellChecker::is_available(u"es"_s) && MySpellChecker::is_available(u"es-ES"_s));
        for (const QString &none : {u""_s, u"tlh"_s, u"en_XX"_s, u"../../en_US"_s})
            QVERIFY(!MySpellChecker::is_available(none));
        const std::pair<QString, QString> names[] = {
            {u"es_ES"_s, u"Español (España)"_s},
            {u"en-GB"_s, u"English (United Kingdom)"_s},
            {u"eo"_s, u"Esperanto"_s},
            {u"en_XX"_s, u"English (XX)"_s},
            {u"qa_QX"_s, u"qa_QX"_s},
            {u""_s, u""_s},
        };
        for (const auto &[lang, name] : names)
            QCOMPARE(MySpellChecker::language_name(lang), name);
    }

    void language_changes_whole_or_not_at_all()
    {
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, CustomTab({}, {}, u"tlh"_s)); // without a leak
        CustomTab tab({}, {}, u"en_US"_s);
        CustomTextEditor &editor = *tab.editor;
        editor.text_edit->setPlainText(u"perro teh"_s);
        editor.text_edit->moveCursor(QTextCursor::End);
        editor.check_spelling();
        editor.update_suggestions();
        const QTextBlock block = editor.text_edit->document()->firstBlock();
        const QString label = editor.word_count_label->text();
        QSignalSpy changed(&editor, &CustomTextEditor::lang_changed);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, tab.set_lang(u"tlh"_s));
        QVERIFY(changed.isEmpty() && tab.lang == u"en_US"_s && editor.lang == u"en_US"_s);
        QVERIFY(editor.word_count_label->text() == label && editor.correctAction->isEnabled());
        QCOMPARE(underlines(block), u"^~~~~ ^~~"_s);
        tab.set_lang(u"en_US"_s); // as it is
        QCOMPARE(underlines(block), u"^~~~~ ^~~"_s);

        connect(&editor, &CustomTextEditor::lang_changed, &editor, [&] { QCOMPARE(tab.lang, editor.lang); });
        tab.set_lang(u"es_ES"_s);
        QCOMPARE(changed.value(0).value(0).toString(), u"es_ES"_s);
        QVERIFY(editor.word_count_label->text().startsWith(u"Lang: ES_ES | "_s) && !editor.correctAction->isEnabled());
        QCOMPARE(underlines(block), QString());
        QCOMPARE(editor.suggestionsComboBox->count(), 0);
        QVERIFY(!editor.is_misspelled(u"perro"_s) && editor.is_misspelled(u"the"_s));
        editor.check_spelling();
        QCOMPARE(underlines(block), u"      ^~~"_s);
        editor.lang = u"en_US"_s; // assigned by a host, then set
        editor.set_lang(u"en_US"_s);
        QVERIFY(editor.is_misspelled(u"perro"_s));
    }

    void editor_without_spelling_does_everything_else()
    {
        CustomTextEditor editor({}, nullptr, u""_s);
        show_active(editor);
        QTest::keyClicks(editor.text_edit, u"Teh wrod."_s);
        QVERIFY(!editor.spellchecker && !editor.checkAction->isEnabled() && !editor.suggestionsComboBox->isEnabled());
        QCOMPARE(editor.word_count_label->text(), u"1 sentences | 2 words | 9 characters"_s);
        QTest::keyClick(editor.text_edit, Qt::Key_F7);
        QSignalSpy added(&editor, &CustomTextEditor::word_added_to_dictionary);
        QSignalSpy done(&editor, &CustomTextEditor::check_spelling_done);
        for (const auto operation : {&CustomTextEditor::check_spelling, &CustomTextEditor::update_suggestions,
                                     &CustomTextEditor::correct_word, &CustomTextEditor::add_word_to_dictionary})
            (editor.*operation)();
        editor.show_first_misspelled({u"wrod"_s});
        editor.add_to_dictionary(u"wrod"_s);
        editor.ignore_word(u"Teh"_s);
        QVERIFY(!editor.is_misspelled(u"wrod"_s) && editor.suggestions_for(u"wrod"_s).isEmpty());
        editor.replace_word(editor.word_at(editor.text_edit->textCursor()), u"word"_s);
        QVERIFY(added.isEmpty() && done.isEmpty());
        QCOMPARE(editor.get_text_content(), u"Teh word."_s);

        editor.set_lang(u"en_US"_s);
        QVERIFY(editor.checkAction->isEnabled() && editor.suggestionsComboBox->isEnabled());
        QVERIFY(editor.is_misspelled(u"wrod"_s) && !editor.is_misspelled(u"teh"_s));
        editor.text_edit->setPlainText(u"wrod"_s);
        QTest::keyClick(editor.text_edit, Qt::Key_F7);
        QCOMPARE(underlines(editor.text_edit->document()), u"^~~~"_s);
    }
};

MY_CLASSES_TEST_MAIN(TstWords)

#include "tst_words.moc"
