// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recipes.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QSaveFile>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextFrame>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>

#include <memory>

using namespace my_classes;
using namespace Qt::StringLiterals;

namespace recipes {

QMenu *context_menu(CustomTextEditor *editor, const QPoint &point)
{
    QMenu *menu = editor->text_edit->createStandardContextMenu(point);
    const QTextCursor word = editor->word_at_point(point);
    const QString text = word.selectedText();
    if (text.isEmpty() || !editor->is_misspelled(text))
        return menu;
    QAction *first = menu->actions().value(0);
    const auto add = [=](const QString &title, auto action) {
        auto *item = new QAction(title, menu);
        QObject::connect(item, &QAction::triggered, editor, action);
        menu->insertAction(first, item);
    };
    const QStringList suggestions = editor->suggestions_for(text).mid(0, 5);
    for (const QString &suggestion : suggestions)
        add(suggestion, [=] { editor->replace_word(word, suggestion); });
    add(u"Add to Dictionary"_s, [=] { editor->add_to_dictionary(text); });
    add(u"Ignore"_s, [=] { editor->ignore_word(text); });
    menu->insertSeparator(first);
    return menu;
}

void use_context_menu(CustomTextEditor *editor)
{
    QTextEdit *text_area = editor->text_edit;
    text_area->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(text_area, &QWidget::customContextMenuRequested, editor, [=](const QPoint &point) {
        QMenu *menu = context_menu(editor, point);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(text_area->viewport()->mapToGlobal(point));
    });
}

void enable_font_boxes(CustomTextEditor *editor)
{
    editor->font_combo->setEnabled(true);
    editor->font_size_combo->setEnabled(true);
    // "activated" is the person's choice; the boxes also follow the caret.
    QObject::connect(editor->font_combo, &QComboBox::textActivated, editor, &CustomTextEditor::set_font_family);
    QObject::connect(editor->font_size_combo, &QComboBox::textActivated, editor,
                     qOverload<const QString &>(&CustomTextEditor::set_font_size));
}

bool save_pdf(const CustomTextEditor *editor, const QString &path, const QString &title)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter writer(&file);
        editor->print_to(&writer, title);
    } // the end of the file is written here
    return file.commit();
}

void show_print_preview(CustomTextEditor *editor)
{
    auto *preview = new QPrintPreviewDialog(editor);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(preview, &QPrintPreviewDialog::paintRequested, editor,
                     [=](QPrinter *printer) { editor->print_to(printer); });
    preview->open();
}

void find_by_ctrl_f(QMainWindow *window, EditableTabWidget *tabs)
{
    auto *find = new QAction(u"Find..."_s, window);
    find->setShortcut(QKeySequence::Find);
    window->addAction(find);
    QObject::connect(find, &QAction::triggered, tabs, [=] {
        if (const auto *tab = qobject_cast<CustomTab *>(tabs->currentWidget()))
            tab->editor->search_text();
    });
}

void reopen_closed_tab(QMainWindow *window, EditableTabWidget *tabs)
{
    struct Closed
    {
        ~Closed() { delete page.data(); } // a page that nobody wanted back
        QPointer<QWidget> page;
        QString title;
    };
    const auto closed = std::make_shared<Closed>();
    auto *reopen = new QAction(u"Reopen Tab"_s, window);
    reopen->setShortcut(QKeySequence(u"Ctrl+Shift+T"_s));
    reopen->setEnabled(false);
    window->addAction(reopen);
    QObject::connect(tabs, &EditableTabWidget::tab_removed, reopen, [=](QWidget *page, const QString &title) {
        if (closed->page)
            closed->page->deleteLater();
        page->setParent(nullptr);
        closed->page = page;
        closed->title = title;
        reopen->setEnabled(true);
    });
    QObject::connect(reopen, &QAction::triggered, tabs, [=] {
        tabs->setCurrentIndex(tabs->addTab(closed->page, tabs->unique_title(closed->title)));
        closed->page = nullptr;
        reopen->setEnabled(false);
    });
}

void ask_in_own_words(EditableTabWidget *tabs)
{
    tabs->set_close_question([tabs](QWidget *page, const QString &title) {
        const auto *tab = qobject_cast<CustomTab *>(page);
        if (tab && tab->get_text_content().trimmed().isEmpty())
            return true;
        const auto answer = QMessageBox::question(tabs, u"Close"_s, u"Close \"%1\" for good?"_s.arg(title));
        return answer == QMessageBox::Yes;
    });
}

void set_margins(CustomTextEditor *editor, int pixels)
{
    QTextFrame *frame = editor->text_edit->document()->rootFrame();
    QTextFrameFormat format = frame->frameFormat();
    format.setMargin(pixels);
    frame->setFrameFormat(format);
}

QTimer *save_by_itself(CustomTextEditor *editor, const QString &path, int milliseconds)
{
    auto *pause = new QTimer(editor);
    pause->setSingleShot(true);
    pause->setInterval(milliseconds);
    QObject::connect(editor->text_edit, &QTextEdit::textChanged, pause, [=] {
        if (editor->is_modified()) // checking the spelling and zooming are no edits
            pause->start();
    });
    QObject::connect(pause, &QTimer::timeout, editor, [=] {
        QSaveFile file(path);
        const QByteArray html = editor->get_html_content().toUtf8();
        if (file.open(QIODevice::WriteOnly) && file.write(html) == html.size() && file.commit())
            editor->set_modified(false);
        else
            pause->start(); // again, later
    });
    return pause;
}

void mark_while_writing(CustomTextEditor *editor)
{
    editor->set_marking_while_writing(true);
}

QLineEdit *add_find_bar(QMainWindow *window, CustomTextEditor *editor)
{
    auto *field = new QLineEdit;
    field->setPlaceholderText(u"Find"_s);
    window->addToolBar(u"Find"_s)->addWidget(field);
    QObject::connect(field, &QLineEdit::returnPressed, editor, [=] {
        if (!editor->text_edit->find(field->text())) {
            editor->text_edit->moveCursor(QTextCursor::Start);
            editor->text_edit->find(field->text());
        }
    });
    return field;
}

QDialog *dialog_with_editor(QWidget *parent)
{
    auto *dialog = new QDialog(parent);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(new CustomTextEditor(dialog));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    column->addWidget(buttons);
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true); // the text keeps Return for itself
    ok->setShortcut(QKeySequence(u"Ctrl+Return"_s));
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return dialog;
}

QWidget *two_languages(const QString &left, const QString &right)
{
    auto *window = new QWidget;
    auto *row = new QHBoxLayout(window);
    for (const QString &language : {left, right}) {
        const bool can_check = my_spellchecker::MySpellChecker::is_available(language);
        row->addWidget(new CustomTextEditor(std::nullopt, window, can_check ? language : QString()));
    }
    return window;
}

} // namespace recipes
