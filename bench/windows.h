// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/custom_text_editor.h>
#include <my_classes/my_spellchecker.h>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtTest/QTest>

namespace bench {

/// What a text has misspelled, and so many words that stand nowhere in it that 20,000 are listed.
inline QSet<QString> words_to_mark(const QString &text)
{
    my_spellchecker::MySpellChecker checker(QStringLiteral("en_US"));
    QSet<QString> misspelled = checker.check(text);
    for (int i = 0; misspelled.size() < 20'000; ++i)
        misspelled.insert(QStringLiteral("xq%1").arg(i));
    return misspelled;
}

/// With what it repaints.
inline void finish_painting()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

struct EditorWindow
{
    EditorWindow()
        : editor(QFont(QStringLiteral("Liberation Serif"), 12))
    {
        editor.resize(1000, 800);
        editor.show();
        (void)QTest::qWaitForWindowExposed(&editor);
    }

    my_classes::CustomTextEditor editor;
};

/// The editor and a plain text area of the size of its own.
struct Windows : EditorWindow
{
    Windows()
    {
        plain.setFont(editor.editor_font);
        plain.resize(editor.text_edit->viewport()->size() + QSize(2 * plain.frameWidth(), 2 * plain.frameWidth()));
        plain.show();
        (void)QTest::qWaitForWindowExposed(&plain);
    }

    explicit Windows(const QString &text)
        : Windows()
    {
        editor.set_text_content(text);
        plain.setPlainText(text);
        complete_layouts();
    }

    void complete_layouts()
    {
        for (QTextEdit *area : {editor.text_edit, &plain}) {
            area->document()->documentLayout()->documentSize();
            finish_painting();
        }
    }

    /// No move stands for the middle.
    void put_cursors(QTextCursor::MoveOperation where)
    {
        for (QTextEdit *area : {editor.text_edit, &plain}) {
            QTextCursor cursor = area->textCursor();
            if (where == QTextCursor::NoMove)
                cursor.setPosition(area->document()->findBlockByNumber(area->document()->blockCount() / 2).position());
            else
                cursor.movePosition(where);
            area->setTextCursor(cursor);
            area->ensureCursorVisible();
        }
        complete_layouts();
    }

    QTextEdit plain;
};

} // namespace bench
