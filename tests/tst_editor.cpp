// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/main_window.h>

#include <QtCore/QMimeData>
#include <QtCore/QRandomGenerator>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtGui/QTextTable>
#include <QtGui/QWheelEvent>
#include <QtNetwork/QTcpServer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;
using my_classes::CustomTextEditor;

namespace {

/// A shown, active window with editors one below the other.
class Window : public QWidget
{
public:
    explicit Window(int editor_count = 1, const QFont &font = QFont(u"Times new roman"_s, 12))
    {
        auto *column = new QVBoxLayout(this);
        for (int i = 0; i < editor_count; ++i) {
            editors.append(new CustomTextEditor(font));
            column->addWidget(editors.last());
        }
        resize(900, 600);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("The window does not become active");
        editors.first()->text_edit->setFocus();
    }

    QList<CustomTextEditor *> editors;
};

/// The items of the tool bar without the separators.
QList<QAction *> items(const CustomTextEditor &editor)
{
    QList<QAction *> all = editor.toolbar->actions();
    all.removeIf([](const QAction *action) { return action->isSeparator(); });
    return all;
}

QAction *item(const CustomTextEditor &editor, const QString &text)
{
    for (QAction *action : items(editor)) {
        if (action->text() == text)
            return action;
    }
    qFatal("No such item: %s", qPrintable(text));
}

QPushButton *zoom_button(const CustomTextEditor &editor, const QString &text)
{
    for (QPushButton *button : editor.findChildren<QPushButton *>()) {
        if (button->text() == text)
            return button;
    }
    qFatal("No such button: %s", qPrintable(text));
}

/// Selects from `anchor` to `position`; without one, puts the cursor there.
void select(CustomTextEditor &editor, int anchor, int position = -1)
{
    QTextCursor cursor = editor.text_edit->textCursor();
    cursor.setPosition(anchor);
    if (position >= 0)
        cursor.setPosition(position, QTextCursor::KeepAnchor);
    editor.text_edit->setTextCursor(cursor);
}

QString grouped(qsizetype number)
{
    QString digits = QString::number(number);
    for (qsizetype i = digits.size() - 3; i > 0; i -= 3)
        digits.insert(i, u',');
    return digits;
}

/// What the statistics line has to say, counted from scratch.
QString recount(const CustomTextEditor &editor)
{
    const QString selected = editor.text_edit->textCursor().selectedText();
    const QString text = selected.isEmpty() ? editor.text_edit->toPlainText() : selected;
    const qsizetype words = text.simplified().split(u' ', Qt::SkipEmptyParts).size();
    qsizetype sentences = 0;
    for (const QString &piece : QString(text).replace(u'!', u'.').replace(u'?', u'.').split(u'.'))
        sentences += piece.trimmed().isEmpty() ? 0 : 1;
    if (words == 0)
        return {};
    return u"Lang: EN | "_s + (selected.isEmpty() ? QString() : u"Selected: "_s) + grouped(sentences) +
           u" sentences | "_s + grouped(words) + u" words | "_s + grouped(text.toUcs4().size()) + u" characters"_s;
}

/// Sends a wheel event to whatever is at that place of the window. Returns whether it was accepted.
bool turn_wheel(QWidget *window, QPoint place, QPoint delta, Qt::KeyboardModifiers modifiers)
{
    QWidget *target = window->childAt(place);
    QWheelEvent event(target->mapFrom(window, place), window->mapToGlobal(place), {}, delta, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
    return event.isAccepted();
}

const QString k_picture =
    u"<img src='data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk"
    "YPhfDwAChwGA60e6kgAAAABJRU5ErkJggg=='>"_s;
const QString k_table =
    u"<table border='1'><tr><td>one.</td><td>two</td></tr><tr><td>three</td><td></td></tr></table>"_s;

/// Answers the print dialog with printing into that file.
void print_to(const QString &file)
{
    test_support::answer_next_dialog([file](QDialog *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(u"filename"_s);
        if (!name || !name->isEnabled())
            return dialog->reject();
        name->setText(file);
        for (const QPushButton *button : dialog->findChildren<QPushButton *>()) {
            if (button->isDefault())
                QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
}

qsizetype page_count(const QString &pdf)
{
    QFile file(pdf);
    return file.open(QFile::ReadOnly) ? file.readAll().count("/Type /Page\n") : -1;
}

} // namespace

class TstEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }

    void construction();
    void toolbar_items();
    void toolbar_shows_everything_at_every_width();
    void toolbar_by_keyboard_and_mouse();
    void shortcuts_of_two_editors();
    void zoom_steps();
    void wheel_zooms_and_scrolls();
    void zoom_does_not_leave_the_editor_data();
    void zoom_does_not_leave_the_editor();
    void zoom_of_a_font_in_pixels();
    void statistics();
    void statistics_follow_every_edit_data();
    void statistics_follow_every_edit();
    void formatting_takes_the_word();
    void formatting_merges_and_clears();
    void font_size();
    void paragraph_formatting();
    void content_operations();
    void pasting_plain_text();
    void theme_changes_at_run_time();
    void bad_input_data();
    void bad_input();
    void prints_unzoomed_to_a_file();
    void dies_while_printing();
};

void TstEditor::construction()
{
    const CustomTextEditor editor(std::nullopt);
    QCOMPARE(editor.lang, u"en"_s);
    QCOMPARE(editor.editor_font, QFont(u"Times new roman"_s, 12));
    QCOMPARE(editor.toolbar->windowTitle(), u"Main Toolbar"_s);
    QCOMPARE(editor.toolbar->iconSize(), QSize(16, 16));
    QCOMPARE(editor.layout()->contentsMargins(), QMargins(70, 0, 70, 0));
    QCOMPARE(editor.text_edit->styleSheet(), u"QTextEdit { padding: 50px; border: 1px solid lightgray; }"_s);
    QCOMPARE(editor.text_edit->autoFormatting(), QTextEdit::AutoAll);
    QVERIFY(editor.text_edit->autoFillBackground());
    QCOMPARE(editor.word_count_label->text(), QString());
    QCOMPARE(editor.zoom_label->text(), u"100%"_s);
    QCOMPARE(editor.search_results, QList<int>());
    QCOMPARE(editor.current_search_index, -1);
    for (const auto &[text, name] : {std::pair(u"+"_s, u"Zoom in"_s), std::pair(u"-"_s, u"Zoom out"_s)}) {
        QCOMPARE(zoom_button(editor, text)->maximumSize(), QSize(25, 25));
        QCOMPARE(zoom_button(editor, text)->accessibleName(), name);
    }

    QCOMPARE(editor.font_combo->currentText(), u"Times new roman"_s);
    QCOMPARE(editor.font_size_combo->currentText(), u"12"_s);
    QCOMPARE(editor.font_size_combo->count(), 32);
    QVERIFY(!editor.font_combo->isEnabled() && !editor.font_size_combo->isEnabled());

    const CustomTextEditor other(QFont(u"Courier"_s, 13));
    QCOMPARE(other.text_edit->font().family(), u"Courier"_s);
    QCOMPARE(other.font_size_combo->currentText(), u"8"_s); // 13 is not among the sizes

    my_classes::MainWindow window;
    QCOMPARE(window.windowTitle(), u"MainWindow with CustomTextEditor"_s);
    QCOMPARE(window.geometry(), QRect(100, 100, 800, 600));
    QCOMPARE(window.text_editor->text_edit->font().pointSize(), 20);
}

void TstEditor::toolbar_items()
{
    // "|" separator, "*" checkable, "-" disabled, "=" shortcut
    const QString wanted =
        u"Print=Ctrl+P | *Bold=Ctrl+B *Italic=Ctrl+I *Underline=Ctrl+U | Cut Copy Paste "
        "Paste_Unformatted | Undo=Ctrl+Z redo=%1 | Select_All Search <font_family> <font_size> | "
        "Justify_Left Justify_Center Justify_Right Justify_Full | Numbered_List Bullet_List_Disc "
        "Bullet_List_Square | -Clear_Selection_Formatting=F8 | Check_Spelling=F7 <suggestions> "
        "-Correct -Append_to_Dictionary | Insert_Image Insert_Table"_s.arg(QKeySequence(QKeySequence::Redo).toString());
    const CustomTextEditor editor(std::nullopt);
    const QHash<QWidget *, QString> boxes{{editor.font_combo, u"<font_family>"_s},
                                          {editor.font_size_combo, u"<font_size>"_s},
                                          {editor.suggestionsComboBox, u"<suggestions>"_s}};
    QStringList found;
    for (QAction *action : editor.toolbar->actions()) {
        QWidget *widget = editor.toolbar->widgetForAction(action);
        if (action->isSeparator()) {
            found += u"|"_s;
        } else if (boxes.contains(widget)) {
            found += boxes[widget];
        } else {
            QVERIFY2(!action->icon().pixmap(16).isNull(), qPrintable(action->text()));
            found += (action->isCheckable() ? u"*"_s : QString()) + (action->isEnabled() ? QString() : u"-"_s) +
                     action->text().replace(u' ', u'_') +
                     (action->shortcut().isEmpty() ? QString() : u'=' + action->shortcut().toString());
        }
    }
    QCOMPARE(found.join(u' '), wanted);
    QCOMPARE(editor.suggestionsComboBox->placeholderText(), u"Spellcheck Suggestions"_s);
    QVERIFY(!editor.suggestionsComboBox->isEditable() && editor.suggestionsComboBox->isEnabled());
}

void TstEditor::toolbar_shows_everything_at_every_width()
{
    my_classes::MainWindow window;
    const CustomTextEditor &editor = *window.text_editor;
    editor.text_edit->setPlainText(u"word. "_s.repeated(200'000)); // a long statistics line
    window.show();
    QCOMPARE(items(editor).size(), 28);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.setLayoutDirection(direction);
        for (int width = 1400; width >= 550; width -= 50) {
            window.resize(width, 600);
            QCoreApplication::processEvents();
            QCOMPARE(window.width(), width);
            QRegion taken;
            for (QAction *action : items(editor)) {
                const QWidget *widget = editor.toolbar->widgetForAction(action);
                const QByteArray where = action->text().toUtf8() + " at " + QByteArray::number(width);
                QVERIFY2(widget->isVisible(), where);
                QVERIFY2(editor.toolbar->rect().contains(widget->geometry()), where);
                QVERIFY2(widget->width() >= qMin(widget->sizeHint().width(), editor.toolbar->width() - 10), where);
                QVERIFY2(!taken.intersects(widget->geometry()), where);
                taken += widget->geometry();
            }
            QVERIFY(editor.toolbar->geometry().bottom() < editor.text_edit->geometry().top());
            QVERIFY(editor.rect().contains(zoom_button(editor, u"+"_s)->geometry()));
        }
    }
}

void TstEditor::toolbar_by_keyboard_and_mouse()
{
    Window window(2);
    for (CustomTextEditor *editor : window.editors) {
        QTextEdit *text_edit = editor->text_edit;
        const auto is_in_toolbar = [editor] { return editor->toolbar->isAncestorOf(QApplication::focusWidget()); };
        text_edit->setFocus();
        QTest::keyClick(text_edit, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(is_in_toolbar());
        QSet<QWidget *> reached;
        for (int i = 0; i < 40 && is_in_toolbar(); ++i) {
            reached.insert(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        }
        for (QAction *action : items(*editor)) {
            QWidget *widget = editor->toolbar->widgetForAction(action);
            QVERIFY2(reached.contains(widget) == widget->isEnabled(), qPrintable(action->text()));
        }

        text_edit->setFocus();
        QTest::keyClick(text_edit, Qt::Key_F10, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), editor->toolbar->widgetForAction(item(*editor, u"Print"_s)));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), editor->toolbar->widgetForAction(editor->bold_action));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(editor->bold_action->isChecked());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(!editor->bold_action->isChecked());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), text_edit);

        QTest::keyClicks(text_edit, u"abc"_s);
        QTest::mouseClick(editor->toolbar->widgetForAction(editor->bold_action), Qt::LeftButton);
        QVERIFY(editor->bold_action->isChecked());
        QCOMPARE(text_edit->fontWeight(), int(QFont::Bold));
        QTest::mouseClick(zoom_button(*editor, u"+"_s), Qt::LeftButton);
        QCOMPARE(editor->zoom_label->text(), u"110%"_s);
        QCOMPARE(QApplication::focusWidget(), text_edit);
        QTest::keyClick(text_edit, Qt::Key_Tab);
        QCOMPARE(text_edit->toPlainText(), u"abc\t"_s);
    }
}

void TstEditor::shortcuts_of_two_editors()
{
    Window window(2);
    for (CustomTextEditor *editor : window.editors) {
        QTextEdit *text_edit = editor->text_edit;
        text_edit->setFocus();
        QTest::keyClicks(text_edit, u"ab"_s);
        QTest::keyClick(text_edit, Qt::Key_B, Qt::ControlModifier);
        QTest::keyClick(text_edit, Qt::Key_I, Qt::ControlModifier);
        QTest::keyClick(text_edit, Qt::Key_U, Qt::ControlModifier);
        QVERIFY(editor->bold_action->isChecked() && editor->italic_action->isChecked());
        QVERIFY(editor->underline_action->isChecked());
        QVERIFY(text_edit->fontWeight() == QFont::Bold && text_edit->fontItalic() && text_edit->fontUnderline());
        QTest::keyClick(text_edit, Qt::Key_F8); // nothing is selected: disabled
        QVERIFY(text_edit->fontUnderline());
        QTest::keyClick(text_edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(text_edit, Qt::Key_F8);
        QVERIFY(!text_edit->textCursor().charFormat().fontUnderline());
        QTest::keyClick(text_edit, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(text_edit->textCursor().charFormat().fontUnderline());
        QTRY_VERIFY(editor->underline_action->isChecked() && !editor->clear_formatting_action->isEnabled());

        QSignalSpy checked(editor, &CustomTextEditor::check_spelling_done);
        QTest::keyClick(text_edit, Qt::Key_F7);
        QCOMPARE(checked.size(), 1);
    }
    QVERIFY(window.editors.first()->bold_action->isChecked());
}

void TstEditor::zoom_steps()
{
    CustomTextEditor editor(QFont(u"Times new roman"_s, 20));
    const auto size = [&editor] { return editor.text_edit->font().pointSize(); };
    for (int i = 0; i < 11; ++i)
        zoom_button(editor, u"+"_s)->click();
    QCOMPARE(editor.zoom_label->text(), u"200%"_s);
    QCOMPARE(size(), 30);
    for (int i = 0; i < 21; ++i)
        zoom_button(editor, u"-"_s)->click();
    QCOMPARE(editor.zoom_label->text(), u"0%"_s);
    QCOMPARE(size(), 10);

    const QList<std::tuple<int, int, QString>> hosts_steps{
        {120, 12, u"120%"_s}, {120, 14, u"120%"_s}, {125, 16, u"125%"_s}, {100, 16, u"100%"_s},
        {81, 15, u"81%"_s},   {-20, 3, u"-20%"_s},  {300, 23, u"300%"_s}};
    for (const auto &[percent, points, label] : hosts_steps) {
        editor.set_zoom_percent(percent);
        QCOMPARE(size(), points);
        QCOMPARE(editor.zoom_label->text(), label);
    }
    editor.zoom_in(); // above the bound
    QCOMPARE(editor.zoom_label->text(), u"300%"_s);
    editor.zoom_out();
    QCOMPARE(editor.zoom_label->text(), u"290%"_s);
    QCOMPARE(size(), 22);
}

void TstEditor::wheel_zooms_and_scrolls()
{
    Window window;
    const CustomTextEditor &editor = *window.editors.first();
    editor.text_edit->setPlainText(u"line\n"_s.repeated(300));
    QCoreApplication::processEvents();
    const QScrollBar *bar = editor.text_edit->verticalScrollBar();
    const QPoint corner = editor.text_edit->mapTo(&window, QPoint());
    for (const QPoint place : {QPoint(3, 3), QPoint(70, 70), QPoint(250, 250)}) { // frame, margin, text
        const int percent = editor.zoom_percent;
        QVERIFY(turn_wheel(&window, corner + place, {0, 120}, Qt::ControlModifier | Qt::ShiftModifier));
        QCOMPARE(editor.zoom_percent, percent + 10);
        turn_wheel(&window, corner + place, {0, -1}, Qt::ControlModifier);
        turn_wheel(&window, corner + place, {120, 0}, Qt::ControlModifier); // sideways: out
        QCOMPARE(editor.zoom_label->text(), QString::number(percent - 10) + u'%');
        const int scrolled = bar->value();
        turn_wheel(&window, corner + place, {0, -120}, Qt::NoModifier);
        QVERIFY(bar->value() > scrolled);
        QCOMPARE(editor.zoom_percent, percent - 10);
    }
}

void TstEditor::zoom_does_not_leave_the_editor_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("plain") << u"<p>one</p><p align='center'>two<br>three</p>"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("sizes around the zoomed one")
        << u"<p>a<span style='font-size:12pt'>b</span><span style='font-size:15pt'>c</span></p>"_s;
    QTest::newRow("headings and relative sizes")
        << u"<h1>a</h1><p><big>b</big><small>c</small><span style='font-family:Arial; font-size:large'>d</span></p>"_s;
    QTest::newRow("pixels") << u"<p style='font-size:20px'>a</p>"_s;
    QTest::newRow("table first") << k_table + u"<p>behind</p>"_s;
    QTest::newRow("table last") << u"<p>before</p>"_s + k_table;
    QTest::newRow("list") << u"<ol><li>a<ul><li>b</li></ul></li></ol><hr><pre>x  y</pre>"_s;
    QTest::newRow("picture") << u"<p>a"_s + k_picture + u"b</p>"_s;
    QTest::newRow("last paragraph formatted and empty") << u"<p>a</p><p align='right'><b></b></p>"_s;
    QTest::newRow("page colour and title")
        << u"<html><head><title>t</title></head><body bgcolor='#ff0000'><p>a</p></body></html>"_s;
}

void TstEditor::zoom_does_not_leave_the_editor()
{
    QFETCH(const QString, html);
    CustomTextEditor editor(QFont(u"Times new roman"_s, 12));
    editor.set_html_content(html);
    const QString before = editor.text_edit->toHtml();
    QCOMPARE(editor.get_html_content(), before);
    for (const int percent : {130, 40}) {
        editor.set_zoom_percent(percent);
        QVERIFY(editor.text_edit->toHtml() != before);
        QCOMPARE(editor.get_html_content(), before);
    }
    editor.set_html_content(html); // read in while zoomed
    QCOMPARE(editor.get_html_content(), before);
    for (int i = 0; i < 3; ++i) {
        editor.zoom_in();
        QCOMPARE(editor.get_html_content(), before);
    }
    QVERIFY(editor.text_edit->font().pointSize() == 12 && editor.text_edit->toHtml() == before);
    editor.text_edit->selectAll();
    editor.text_edit->copy();
    const QString copied = QApplication::clipboard()->mimeData()->html();
    editor.set_zoom_percent(160);
    editor.text_edit->copy();
    QCOMPARE(QApplication::clipboard()->mimeData()->html(), copied);
}

void TstEditor::zoom_of_a_font_in_pixels()
{
    QFont font(u"Times new roman"_s);
    font.setPixelSize(20);
    CustomTextEditor editor(font);
    editor.set_html_content(u"<p>a</p>"_s);
    const QString before = editor.get_html_content();
    const int height = QFontInfo(editor.text_edit->font()).pixelSize();
    editor.zoom_in();
    QVERIFY(QFontInfo(editor.text_edit->font()).pixelSize() > height);
    QCOMPARE(editor.get_html_content(), before);
    editor.zoom_out();
    QCOMPARE(QFontInfo(editor.text_edit->font()).pixelSize(), height);
    QCOMPARE(editor.get_html_content(), before);
}

void TstEditor::statistics()
{
    const QString head = u"Lang: EN | "_s;
    const QList<std::tuple<QString, int, QString>> cases{
        // text, length of the selection at its start, line
        {u"Hello world. Bye!"_s, 0, head + u"2 sentences | 3 words | 17 characters"_s},
        {u"Hello world. Bye!"_s, 11, head + u"Selected: 1 sentences | 2 words | 11 characters"_s},
        {u"a\nb"_s, 3, head + u"Selected: 1 sentences | 2 words | 3 characters"_s},
        {u"  a"_s, 2, QString()},
        {u" \n\u00a0\u2003 "_s, 0, QString()},
        {u"..."_s, 0, head + u"0 sentences | 1 words | 3 characters"_s},
        {u"A.B"_s, 0, head + u"2 sentences | 1 words | 3 characters"_s},
        {u"\U0001F600 \U00010437"_s, 0, head + u"1 sentences | 2 words | 3 characters"_s},
        {u"ab. "_s.repeated(1000), 0, head + u"1,000 sentences | 1,000 words | 4,000 characters"_s},
    };
    QLocale::setDefault(QLocale(QLocale::German)); // groups with dots
    CustomTextEditor editor(std::nullopt);
    for (const auto &[text, selected, line] : cases) {
        editor.set_text_content(text);
        select(editor, 0, selected);
        QCOMPARE(editor.word_count_label->text(), line);
        QCOMPARE(recount(editor), line);
    }
    QLocale::setDefault(QLocale::c());
    QCOMPARE(editor.count_sentences(u"Wait... No end"_s), 2);
}

void TstEditor::statistics_follow_every_edit_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1, 2, 3, 4})
        QTest::addRow("seed %u", seed) << seed;
}

void TstEditor::statistics_follow_every_edit()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    const QStringList pieces{u"word"_s,
                             u" two words. "_s,
                             u"A! B?"_s,
                             u"..."_s,
                             u"\u00a0"_s,
                             u"a\u2028b"_s,
                             u"c\u2029d"_s,
                             u"x\ny\n\nz"_s,
                             u"\U0001F600"_s,
                             QString(QChar(0xd83d)),
                             QString(QChar(0xde00)),
                             QString(QChar(0)),
                             u"\ufdd0\ufdd1"_s,
                             u"\u05d0\u05d1. "_s};
    const QStringList fragments{u"<b>bold</b> and <i>more.</i>"_s,
                                u"<p>one</p><p>two. three</p>"_s,
                                k_table,
                                k_picture,
                                u"<ul><li>item</li><li>item. x</li></ul>"_s,
                                u"<hr>"_s};
    Window window;
    CustomTextEditor &editor = *window.editors.first();
    QTextEdit *text_edit = editor.text_edit;
    const auto any_of = [&random](const QStringList &list) { return list[random.bounded(int(list.size()))]; };
    const auto any_place = [&random] { return QPoint(random.bounded(300), random.bounded(200)); };
    const auto any_position = [&] { return random.bounded(text_edit->document()->characterCount()); };
    const auto key = [text_edit](Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        return [=] { QTest::keyClick(text_edit, code, modifiers); };
    };
    const auto with_table = [&](const std::function<void(QTextTable *)> &change) {
        return [=] {
            if (QTextTable *table = text_edit->textCursor().currentTable())
                change(table);
        };
    };
    QList<std::pair<const char *, std::function<void()>>> edits;
    const auto add = [&edits](const char *name, std::function<void()> edit) { edits.append({name, std::move(edit)}); };
    add("type", [&] { QTest::keyClicks(text_edit, u"ab c.d"_s.mid(random.bounded(5))); });
    add("insert text", [&] { text_edit->insertPlainText(any_of(pieces)); });
    add("paste plain", [&] { editor.paste_plain_text(); });
    add("backspace", key(Qt::Key_Backspace));
    add("delete a word", key(Qt::Key_Delete, Qt::ControlModifier));
    add("return", key(Qt::Key_Return));
    add("line break", key(Qt::Key_Return, Qt::ShiftModifier));
    add("undo", key(Qt::Key_Z, Qt::ControlModifier));
    add("redo", [&] { item(editor, u"redo"_s)->trigger(); });
    add("cut", key(Qt::Key_X, Qt::ControlModifier));
    add("copy", key(Qt::Key_C, Qt::ControlModifier));
    add("paste", key(Qt::Key_V, Qt::ControlModifier));
    add("insert html", [&] { text_edit->insertHtml(any_of(fragments)); });
    add("insert behind", [&] { editor.insert_after_selection(any_of(fragments)); });
    add("replace", [&] { editor.replace_selected_text(random.bounded(2) ? any_of(fragments) : QString()); });
    add("numbered list", [&] { editor.insert_numbered_list(); });
    add("table", [&] { text_edit->textCursor().insertTable(1 + random.bounded(3), 1 + random.bounded(3)); });
    add("add rows", with_table([](QTextTable *table) { table->insertRows(0, 2); }));
    add("drop a column", with_table([](QTextTable *table) { table->removeColumns(0, 1); }));
    add("merge cells", with_table([](QTextTable *table) { table->mergeCells(0, 0, table->rows(), 1); }));
    add("select cells", with_table([&](QTextTable *table) {
            const auto last = table->cellAt(random.bounded(table->rows()), random.bounded(table->columns()));
            select(editor, table->cellAt(0, 0).firstPosition(), last.lastPosition());
        }));
    add("bold", [&] { editor.bold_action->trigger(); });
    add("clear formats", [&] { editor.clear_formatting(); });
    add("line spacing", [&] { editor.set_line_spacing(150); });
    add("move", [&] { select(editor, any_position()); });
    add("select", [&] { select(editor, any_position(), any_position()); });
    add("select by key", key(Qt::Key_Right, Qt::ShiftModifier));
    add("select by mouse", [&] {
        QTest::mousePress(text_edit->viewport(), Qt::LeftButton, {}, any_place());
        QTest::mouseMove(text_edit->viewport(), any_place());
        QTest::mouseRelease(text_edit->viewport(), Qt::LeftButton, {}, any_place());
    });
    add("drop text", [&] {
        QMimeData data;
        data.setText(any_of(pieces));
        QDropEvent event(any_place(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(text_edit->viewport(), &event);
    });
    add("several edits as one", [&] {
        QTextCursor cursor(text_edit->document());
        cursor.beginEditBlock();
        for (int i = 0; i < 3; ++i) {
            cursor.setPosition(any_position());
            random.bounded(2) ? cursor.insertText(any_of(pieces)) : cursor.deletePreviousChar();
        }
        cursor.endEditBlock();
    });
    QApplication::clipboard()->setText(u"start. "_s);
    for (int i = 0; i < 500; ++i) {
        if (text_edit->document()->characterCount() > 2000 || random.bounded(100) == 0)
            random.bounded(2) ? editor.set_html_content(any_of(fragments)) : text_edit->setPlainText(any_of(pieces));
        const auto &[name, edit] = edits[random.bounded(int(edits.size()))];
        edit();
        QCoreApplication::processEvents();
        const QByteArray step = QByteArray("step ") + QByteArray::number(i) + ", " + name;
        QVERIFY2(editor.word_count_label->text() == recount(editor),
                 step + ": " + editor.word_count_label->text().toUtf8() + " instead of " + recount(editor).toUtf8());
    }
}

void TstEditor::formatting_takes_the_word()
{
    // "|" cursor; the word that is taken stands in brackets
    for (const QString &marked :
         {u"one [t|wo] three"_s, u"one [|two] three"_s, u"one [two|] three"_s, u"[one|], two"_s, u"one,| two"_s,
          u"one | two"_s, u"one -|-- two"_s, u"|"_s, u"I [do|n't] know"_s, u"I [don'|t] know"_s, u"I [don|'t] know"_s,
          u"I [don\u2019t|], no"_s, u"the '[quoted|]' one"_s, u"[est|a\u0301] bien"_s, u"x [\U00010437|\U00010437] y"_s,
          u"\u05d0\u05d1 [\u05d2|\u05d3] \u05d4"_s}) {
        const QString without_cursor = QString(marked).remove(u'|');
        const int place = int(QString(marked).remove(u'[').remove(u']').indexOf(u'|'));
        CustomTextEditor editor(std::nullopt);
        editor.text_edit->setPlainText(QString(without_cursor).remove(u'[').remove(u']'));
        select(editor, place);
        editor.bold_action->trigger();
        QCOMPARE(editor.text_edit->textCursor().position(), place);
        QVERIFY(!editor.text_edit->textCursor().hasSelection());

        QString found;
        const QTextBlock block = editor.text_edit->document()->firstBlock();
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const bool is_bold = fragment.fragment().charFormat().fontWeight() == QFont::Bold;
            found += (is_bold ? u"[%1]"_s : u"%1"_s).arg(fragment.fragment().text());
        }
        QCOMPARE(found, without_cursor);
        editor.text_edit->insertPlainText(u"x"_s);
        QCOMPARE(editor.text_edit->textCursor().charFormat().fontWeight(), int(QFont::Bold));
    }
}

void TstEditor::formatting_merges_and_clears()
{
    CustomTextEditor editor(std::nullopt);
    QTextEdit *text_edit = editor.text_edit;
    const auto format_at = [text_edit](int position) {
        QTextCursor cursor(text_edit->document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    };
    editor.set_html_content(u"<b>ab</b>cd"_s + k_picture + u"<a href='x'>ef</a>"_s);
    select(editor, 1, 3);
    QVERIFY(editor.clear_formatting_action->isEnabled());
    editor.italic_action->trigger();
    QVERIFY(format_at(1).fontItalic() && format_at(1).fontWeight() == QFont::Bold);
    QVERIFY(format_at(2).fontItalic() && format_at(2).fontWeight() == QFont::Normal);
    QVERIFY(editor.text_edit->textCursor().hasSelection());
    editor.set_font_family(u"Courier"_s);
    QCOMPARE(format_at(1).fontFamilies().toStringList(), QStringList(u"Courier"_s));

    const QString formatted = text_edit->toHtml();
    text_edit->selectAll();
    editor.clear_formatting();
    QVERIFY(format_at(4).isImageFormat());
    for (const int position : {0, 1, 2, 3, 5, 6})
        QCOMPARE(format_at(position).propertyCount(), 0);
    QVERIFY(text_edit->textCursor().hasSelection());
    text_edit->undo();
    QCOMPARE(text_edit->toHtml(), formatted);

    select(editor, 0);
    QVERIFY(!editor.clear_formatting_action->isEnabled());
    editor.clear_formatting();
    QCOMPARE(text_edit->toHtml(), formatted);

    editor.set_html_content(u"<table><tr><td><b>a</b></td><td><b>b</b></td></tr><tr><td><b>c</b></td></tr></table>"_s);
    select(editor, 1, 3); // both cells of the first row
    QVERIFY(text_edit->textCursor().hasComplexSelection());
    editor.clear_formatting();
    const QTextTable *table = text_edit->textCursor().currentTable();
    for (const auto &[row, column, weight] : {std::tuple(0, 0, 400), std::tuple(0, 1, 400), std::tuple(1, 0, 700)})
        QCOMPARE(format_at(table->cellAt(row, column).firstPosition()).fontWeight(), weight);

    QTest::ignoreMessage(QtWarningMsg, "set_bold is called without a checkable sender: no format applied");
    editor.set_bold();
}

void TstEditor::font_size()
{
    const QPair<QString, double> sizes[] = {{u"14"_s, 14},   {u" 16 "_s, 16}, {u"10.5"_s, 10.5}, {QString(), 0},
                                            {u"abc"_s, 0},   {u"12pt"_s, 0},  {u"nan"_s, 0},     {u"inf"_s, 0},
                                            {u"1e400"_s, 0}, {u"0"_s, 0},     {u"-3"_s, 0}};
    for (const auto &[typed, points] : sizes) { // 0: refused
        Window window;
        CustomTextEditor &editor = *window.editors.first();
        editor.text_edit->setPlainText(u"word"_s);
        zoom_button(editor, u"+"_s)->setFocus();
        const QString before = editor.get_html_content();
        const auto expect_refusal = [refused = points == 0] {
            if (refused)
                QTest::ignoreMessage(QtWarningMsg, "The font size is no positive number: no format applied");
        };
        expect_refusal();
        const QString line = test_support::standard_output_of([&, text = typed] { editor.set_font_size(text); });
        QCOMPARE(line, u"Change font size "_s + typed + u'\n');
        QCOMPARE(editor.text_edit->hasFocus(), points != 0);
        QCOMPARE(editor.get_html_content() == before, points == 0);
        QCOMPARE(editor.text_edit->textCursor().charFormat().fontPointSize(), points);
        expect_refusal();
        const QString again = test_support::standard_output_of([&, size = points] { editor.set_font_size(size); });
        QCOMPARE(again, u"Change font size "_s + QString::number(points) + u'\n');
    }
}

void TstEditor::paragraph_formatting()
{
    CustomTextEditor editor(std::nullopt);
    editor.text_edit->setPlainText(u"one\ntwo\nthree"_s);
    select(editor, 5);
    const std::pair<QString, Qt::Alignment> alignments[] = {{u"Justify Right"_s, Qt::AlignRight},
                                                            {u"Justify Center"_s, Qt::AlignCenter},
                                                            {u"Justify Full"_s, Qt::AlignJustify},
                                                            {u"Justify Left"_s, Qt::AlignLeft}};
    for (const auto &[text, alignment] : alignments) {
        item(editor, text)->trigger();
        QCOMPARE(editor.text_edit->alignment(), alignment);
        QVERIFY(!editor.text_edit->document()->firstBlock().blockFormat().hasProperty(QTextFormat::BlockAlignment));
    }
    editor.set_line_spacing(1.5);
    const QTextDocument *document = editor.text_edit->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat().lineHeightType(), 150);
        QCOMPARE(block.blockFormat().lineHeight(), 1.5);
    }
    QCOMPARE(editor.get_selected_text(), u"one\u2029two\u2029three"_s);
    QVERIFY(editor.clear_formatting_action->isEnabled());

    // The boxes and buttons follow the cursor.
    editor.set_html_content(u"<p>a</p><p style='font-size:30px'><b><i>b</i></b></p><h1>c</h1>"
                            "<p style='font-family:Courier; font-size:40pt'><u>d</u></p>"_s);
    const QStringList sizes{u"12"_s, u"12"_s, u"24"_s, u"40"_s};
    for (int i = 0; i < 4; ++i) {
        select(editor, 2 * i + 1);
        QCOMPARE(editor.font_size_combo->currentText(), sizes[i]);
        QCOMPARE(editor.bold_action->isChecked(), i == 1 || i == 2);
        QCOMPARE(editor.italic_action->isChecked(), i == 1);
        QCOMPARE(editor.underline_action->isChecked(), i == 3);
    }
    QCOMPARE(editor.font_combo->currentText(), u"Courier"_s);
}

void TstEditor::content_operations()
{
    CustomTextEditor editor(std::nullopt);
    const QTextDocument *document = editor.text_edit->document();
    editor.set_text_content(u"<b>x</b>"_s);
    QCOMPARE(editor.get_text_content(), u"x"_s);
    editor.set_text_content(u"abc def"_s);
    editor.insert_after_selection(u"<b>X</b>"_s);
    editor.replace_selected_text(u"<b>X</b>"_s);
    QVERIFY(!document->isUndoAvailable()); // nothing is selected

    select(editor, 3, 0);
    editor.insert_after_selection(u"<b>X</b>"_s);
    QCOMPARE(editor.get_text_content(), u"abc\nX def"_s);
    QCOMPARE(editor.text_edit->textCursor().position(), 5);
    QVERIFY(!editor.text_edit->textCursor().hasSelection());
    editor.text_edit->undo();
    QCOMPARE(editor.get_text_content(), u"abc def"_s);
    QVERIFY(!document->isUndoAvailable());

    for (const auto &[html, left] :
         {std::pair(u"<p>X</p><p>Y</p>"_s, u"X\nY def"_s), std::pair(QString(), u" def"_s)}) {
        select(editor, 0, 3);
        editor.replace_selected_text(html);
        QCOMPARE(editor.get_text_content(), left);
        editor.text_edit->undo();
        QCOMPARE(editor.get_text_content(), u"abc def"_s);
        QVERIFY(!document->isUndoAvailable());
    }
}

void TstEditor::pasting_plain_text()
{
    CustomTextEditor editor(std::nullopt);
    editor.set_html_content(u"<i>italic</i>"_s);
    select(editor, 3);
    auto *rich = new QMimeData;
    rich->setHtml(u"<b>rich</b>"_s);
    rich->setText(u"rich"_s);
    QApplication::clipboard()->setMimeData(rich);
    item(editor, u"Paste Unformatted"_s)->trigger();
    QCOMPARE(editor.get_text_content(), u"itarichlic"_s);
    QVERIFY(editor.text_edit->fontItalic() && editor.text_edit->fontWeight() == QFont::Normal);

    auto *only_rich = new QMimeData;
    only_rich->setHtml(u"<b>!</b>"_s);
    QApplication::clipboard()->setMimeData(only_rich);
    editor.paste_plain_text();
    QVERIFY(editor.text_edit->fontItalic() && editor.text_edit->fontWeight() == QFont::Normal);

    editor.text_edit->selectAll();
    auto *no_text = new QMimeData;
    no_text->setImageData(QImage(4, 4, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(no_text);
    editor.paste_plain_text();
    QApplication::clipboard()->clear();
    editor.paste_plain_text();
    item(editor, u"Paste"_s)->trigger();
    QCOMPARE(editor.get_text_content(), u"itarich!lic"_s);
}

void TstEditor::theme_changes_at_run_time()
{
    Window window;
    const QTextEdit *text_edit = window.editors.first()->text_edit;
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(0x353535));
    dark.setColor(QPalette::Base, Qt::black);
    for (const QPalette &palette : {dark, light}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QColor window_colour = palette.color(QPalette::Window);
        QCOMPARE(text_edit->palette().color(QPalette::Base), window_colour);
        QCOMPARE(text_edit->palette().color(QPalette::Text), palette.color(QPalette::Text));
        QCOMPARE(text_edit->verticalScrollBar()->palette().color(QPalette::Button), palette.color(QPalette::Button));
        QCOMPARE(text_edit->viewport()->grab().toImage().pixelColor(1, 1), window_colour);
    }
}

void TstEditor::bad_input_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("unclosed and crossed tags") << u"<b><table><tr><p>a</b><td>b<li>c</i></p>"_s << u"a"_s;
    QTest::newRow("script and style") << u"<p>a<script>alert(1)</script><style>p{</style><iframe src='x'>b</p>"_s
                                      << u"ab"_s;
    QTest::newRow("impossible numbers") << u"<p style='font-size:1e30pt; margin:-99999999999px'>a</p>"
                                           "<table width='-5'><tr><td colspan='-1' rowspan='99999999999'>b"_s
                                        << u"b"_s;
    QTest::newRow("lone surrogates") << u"a"_s + QChar(0xd800) + u"b"_s + QChar(0xdc00) << u"a"_s + QChar(0xd800);
    QTest::newRow("null") << u"a"_s + QChar(0) + u"b"_s << u"b"_s;
    QTest::newRow("pictures elsewhere") << u"<p>a<img src='http://127.0.0.1:%1/x.png'><img src='//127.0.0.1/x'></p>"_s
                                        << u"a"_s;
    QTest::newRow("right to left") << u"\u05d0\u05d1\u202e abc \u0627\u0644"_s << u"\u05d0\u05d1"_s;
    QTest::newRow("deep nesting") << u"<div>"_s.repeated(3000) + u"a"_s << u"a"_s;
    QTest::newRow("devices and pipes") << u"<p>a<img src='/dev/zero'><img src='file:///dev/stdin'>b</p>"_s << u"a"_s;
    QTest::newRow("megabytes in one paragraph")
        << u"word then. "_s.repeated(1'000'000) + u"teh"_s << u"word then. "_s.repeated(99);
}

void TstEditor::bad_input()
{
    QFETCH(const QString, content);
    QFETCH(const QString, text);
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    Window window;
    CustomTextEditor &editor = *window.editors.first();
    editor.set_text_content(QString(content).replace(u"%1"_s, QString::number(server.serverPort())));
    window.grab();
    QVERIFY(editor.get_text_content().contains(text));
    QVERIFY2(editor.word_count_label->text() == recount(editor), qPrintable(editor.word_count_label->text()));
    QTest::keyClicks(editor.text_edit, u"x."_s);
    QTest::keyClick(editor.text_edit, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(editor.text_edit, Qt::Key_B, Qt::ControlModifier);
    QTest::keyClick(editor.text_edit, Qt::Key_F7);
    QTest::keyClick(editor.text_edit, Qt::Key_Backspace);
    editor.zoom_in();
    QVERIFY(!editor.get_html_content().isEmpty());
    QVERIFY(!server.waitForNewConnection(50)); // nothing is ever fetched
    QVERIFY2(editor.word_count_label->text() == recount(editor), qPrintable(editor.word_count_label->text()));
}

void TstEditor::prints_unzoomed_to_a_file()
{
    const QTemporaryDir directory;
    Window window;
    CustomTextEditor &editor = *window.editors.first();
    editor.set_text_content(u"Some wrods that fill a line of teh page, and then another one.\n"_s.repeated(60));
    const QString plain = directory.filePath(u"plain.pdf"_s);
    const QString zoomed = directory.filePath(u"zoomed and checked.pdf"_s);
    print_to(plain);
    item(editor, u"Print"_s)->trigger();
    QVERIFY(page_count(plain) > 1);

    editor.set_zoom_percent(190);
    editor.check_spelling();
    print_to(zoomed);
    item(editor, u"Print"_s)->trigger();
    QCOMPARE(page_count(zoomed), page_count(plain));
    QCOMPARE(QFileInfo(zoomed).size(), QFileInfo(plain).size()); // no underlines either

    test_support::answer_next_dialog([](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    editor.print_document();
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files).size(), 2);
}

void TstEditor::dies_while_printing()
{
    const QPointer<CustomTextEditor> editor = new CustomTextEditor(std::nullopt);
    test_support::answer_next_dialog([editor](QDialog *) { delete editor.data(); });
    item(*editor, u"Print"_s)->trigger();
    QVERIFY(!editor);
}

MY_CLASSES_TEST_MAIN(TstEditor)
#include "tst_editor.moc"
