// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/spelling_support.h"

#include <memory>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

/// An editor in an active window that marks while one writes.
std::unique_ptr<CustomTextEditor> marking_editor()
{
    auto editor = std::make_unique<CustomTextEditor>(std::optional<QFont>(), nullptr, u"en_US"_s);
    editor->resize(900, 500);
    editor->set_marking_while_writing(true);
    show_active(*editor);
    return editor;
}

QString underlines(const CustomTextEditor &editor)
{
    return test_support::underlines(editor.text_edit->document());
}

/// What a full check of another editor underlines in the same text.
QString checked_underlines(const CustomTextEditor &editor)
{
    CustomTextEditor other({}, nullptr, u"en_US"_s);
    other.text_edit->setPlainText(editor.get_text_content());
    other.check_spelling();
    return underlines(other);
}

} // namespace

class TstMarking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void corrected_and_retyped_words()
    {
        const auto editor = marking_editor();
        editor->text_edit->setPlainText(u"wrod"_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~"_s);
        // It has appeared under the caret, with its suggestions; typing in it takes both away.
        QTRY_VERIFY(editor->correctAction->isEnabled());
        QTest::keyClick(editor->text_edit, Qt::Key_Right);
        QTest::keyClick(editor->text_edit, Qt::Key_Delete);
        QCOMPARE(underlines(*editor), QString());
        QTRY_VERIFY(!editor->correctAction->isEnabled());
        QTest::keyClicks(editor->text_edit, u"r"_s); // as it was: listed still, but being typed
        QTest::keyClick(editor->text_edit, Qt::Key_End);
        QTest::keyClicks(editor->text_edit, u" teh "_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~ ^~~"_s);
        QTest::keyClicks(editor->text_edit, u"teh"_s);
        QCOMPARE(underlines(*editor), u"^~~~ ^~~"_s);
        QTest::keyClick(editor->text_edit, Qt::Key_Home);
        QTRY_COMPARE(underlines(*editor), u"^~~~ ^~~ ^~~"_s);
        editor->correctAction->trigger();
        QTest::keyClick(editor->text_edit, Qt::Key_End);
        QTRY_COMPARE(underlines(*editor), checked_underlines(*editor));
        QTRY_COMPARE(editor->highlighter->misspelled, QSet{u"teh"_s});
    }

    void marks_equal_a_full_check()
    {
        const QStringList parts =
            u"teh|wrod|cat|don't|dno't|Teh|zxcv| | | |.|-|'|\n|exmaple.com/zxcv|a@teh.example|7|e\u0301|漢|_"_s.split(
                u'|');
        const auto editor = marking_editor();
        QTextDocument *document = editor->text_edit->document();
        QRandomGenerator random(3);
        for (int round = 0; round < 14; ++round) {
            for (int edit = 0; edit < 25; ++edit) {
                QTextCursor cursor(document);
                cursor.setPosition(random.bounded(document->characterCount()));
                if (random.bounded(3) == 0)
                    cursor.setPosition(random.bounded(document->characterCount()), QTextCursor::KeepAnchor);
                QString text;
                for (int i = random.bounded(6); i > 0; --i)
                    text += parts[random.bounded(parts.size())];
                if (const int kind = random.bounded(8); kind == 0)
                    document->undo();
                else if (kind == 1)
                    document->redo();
                else if (kind == 2)
                    QTest::keyClicks(editor->text_edit, u"teh wrod "_s.left(random.bounded(9)));
                else
                    cursor.insertText(text);
                QCoreApplication::processEvents();
            }
            if (round == 7)
                editor->check_spelling();
            editor->text_edit->moveCursor(QTextCursor::End);
            QTest::keyClicks(editor->text_edit, u" "_s); // leaves the word
            QTRY_COMPARE(underlines(*editor), checked_underlines(*editor));
        }
    }

    void long_texts_come_in_slices()
    {
        const auto editor = marking_editor();
        const QString text = u"Teh quick brown fox jmups over 'exmaple.com/jmup' and don't.\n"_s.repeated(3'000);
        editor->text_edit->setPlainText(text + u"jmup"_s);
        const QTextDocument *document = editor->text_edit->document();
        int turns = 0; // of the event loop while the text is partly marked
        QTimer turn;
        connect(&turn, &QTimer::timeout, this, [&] {
            if (!underlines(document->firstBlock()).isEmpty() && underlines(document->lastBlock()).isEmpty())
                ++turns;
        });
        turn.start(0);
        QTRY_COMPARE_WITH_TIMEOUT(underlines(document->lastBlock()), u"^~~~"_s, 60'000);
        QVERIFY(turns > 0); // how many, the machine decides
        // A word listed last is looked for in what was checked before.
        const QString line = u"^~~                 ^~~~~                   ^~~~"_s;
        QTRY_COMPARE_WITH_TIMEOUT(underlines(document->findBlockByNumber(2'999)), line, 60'000);
        QCOMPARE(underlines(document->firstBlock()), line);
        editor->text_edit->moveCursor(QTextCursor::End);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(editor->text_edit, Qt::Key_Backspace);
        QTRY_COMPARE_WITH_TIMEOUT(underlines(document->findBlockByNumber(2'999)), u"^~~                 ^~~~~"_s,
                                  60'000);
    }

    void marking_follows_language_lists_and_check()
    {
        const auto editor = marking_editor();
        editor->text_edit->setPlainText(u"perro teh qmark Qmark qlist"_s);
        QSignalSpy edits(editor->text_edit, &QTextEdit::textChanged);
        QSignalSpy checks(editor.get(), &CustomTextEditor::check_spelling_done);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~ ^~~~~ ^~~~~ ^~~~~"_s);
        editor->set_marking_while_writing(false);
        QCOMPARE(underlines(*editor), QString());
        editor->set_marking_while_writing(true);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~ ^~~~~ ^~~~~ ^~~~~"_s);
        const QTextDocument *document = editor->text_edit->document();
        QVERIFY(edits.isEmpty() && checks.isEmpty() && !document->isModified() && !document->isUndoAvailable());
        editor->ignore_word(u"qmark"_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~             ^~~~~"_s);
        CustomTextEditor({}, nullptr, u"en_US"_s).add_to_dictionary(u"qlist"_s); // in another editor
        editor->text_edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(editor->text_edit, u" qmark "_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~"_s);
        editor->set_lang(u"es_ES"_s);
        QCOMPARE(underlines(*editor), QString());
        QTRY_COMPARE(underlines(*editor), u"      ^~~             ^~~~~"_s);
        editor->set_lang(u""_s);
        QVERIFY(underlines(*editor).isEmpty() && editor->is_marking_while_writing());
        QTest::keyClicks(editor->text_edit, u"teh "_s);
        editor->set_lang(u"en_US"_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~                         ^~~"_s);

        QTest::keyClicks(editor->text_edit, u"wrod"_s); // asked for, the word being typed is checked as well
        QTest::keyClick(editor->text_edit, Qt::Key_F7);
        QCOMPARE(underlines(*editor), u"^~~~~ ^~~                         ^~~ ^~~~"_s);
        QTest::keyClicks(editor->text_edit, u"d"_s);
        QCOMPARE(underlines(*editor), u"^~~~~ ^~~                         ^~~"_s);
        editor->highlighter->setMisspelled({u"l.st"_s}); // a host's own list holds until the next check
        QTest::keyClicks(editor->text_edit, u" list "_s);
        QTRY_COMPARE(underlines(*editor), u"^~~~~ ^~~                         ^~~ ^~~~~"_s);
    }

    void marking_survives_other_documents_and_the_end()
    {
        auto editor = marking_editor();
        QTest::keyClicks(editor->text_edit, u"teh wrod"_s); // a word being typed
        auto *other = new QTextDocument(u"dno't go"_s, editor->text_edit);
        editor->text_edit->setDocument(other);
        QTRY_COMPARE(underlines(*editor), u"^~~~~"_s);
        editor->text_edit->setDocument(new QTextDocument(editor->text_edit));
        delete other;
        QTest::keyClicks(editor->text_edit, u"hte "_s);
        QTRY_COMPARE(underlines(*editor), u"^~~"_s);

        // In the middle of slices: switched off and on, the editor deleted.
        const QString text = u"Teh quick brown fox jmups.\n"_s.repeated(3'000);
        editor->text_edit->setPlainText(text);
        QTRY_VERIFY(!underlines(editor->text_edit->document()->firstBlock()).isEmpty());
        editor->set_marking_while_writing(false);
        editor->set_marking_while_writing(true);
        QTRY_VERIFY(!underlines(editor->text_edit->document()->firstBlock()).isEmpty());
        editor.reset();
        // In a slot that the marking leads to.
        CustomTextEditor *deleted = marking_editor().release();
        connect(deleted->correctAction, &QAction::enabledChanged, this, [deleted](bool on) {
            if (on)
                deleted->deleteLater();
        });
        QSignalSpy destroyed(deleted, &QObject::destroyed);
        deleted->text_edit->setPlainText(u"teh"_s);
        QTRY_COMPARE(destroyed.size(), 1);
    }
};

MY_CLASSES_TEST_MAIN(TstMarking)

#include "tst_marking.moc"
