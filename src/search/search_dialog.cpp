// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "frame/icons.h"
#include "frame/retranslation.h"
#include "search/document_text.h"
#include "search/placement.h"
#include "search/replace_run.h"

#include <my_classes/search_dialog.h>

#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace my_classes {

namespace {

constexpr int k_visible_characters = 40; // of the search text

QLineEdit *add_input_row(QVBoxLayout *column, QLabel *label)
{
    auto *input = new QLineEdit;
    input->setMinimumWidth(k_visible_characters * input->fontMetrics().averageCharWidth());
    label->setBuddy(input);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(input);
    column->addLayout(row);
    return input;
}

QPushButton *add_button(QHBoxLayout *row)
{
    auto *button = new QPushButton;
    button->setAutoDefault(false); // or Return in the search field would press it too
    row->addWidget(button);
    return button;
}

} // namespace

SearchDialog::SearchDialog(QTextEdit *text_area)
    : editor(text_area)
    , m_text(new DocumentText(text_area, this))
{
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(icon(u"binoculars.png"_s));
    init_ui();
    if (text_area) {
        text_area->installEventFilter(this);
        connect(text_area, &QObject::destroyed, this, &SearchDialog::on_editor_destroyed);
    }
}

SearchDialog::~SearchDialog()
{
    if (m_search_input_in_use)
        search_input->setParent(nullptr); // on_return_pressed() deletes it
}

void SearchDialog::init_ui()
{
    auto *column = new QVBoxLayout(this);
    auto *find_label = new QLabel;
    auto *replace_label = new QLabel;
    search_input = add_input_row(column, find_label);
    replace_input = add_input_row(column, replace_label);

    auto *buttons = new QHBoxLayout;
    next_button = add_button(buttons);
    replace_button = add_button(buttons);
    replace_all_button = add_button(buttons);
    replace_button->setEnabled(false);
    replace_all_button->setEnabled(false);
    column->addLayout(buttons);
    new Retranslation(this, [this, find_label, replace_label] { set_texts(find_label, replace_label); });

    connect(search_input, &QLineEdit::textEdited, this, [this] { matches.reset(); });
    connect(next_button, &QPushButton::clicked, this, &SearchDialog::find_next);
    connect(search_input, &QLineEdit::returnPressed, this, &SearchDialog::on_return_pressed);
    connect(replace_button, &QPushButton::clicked, this, &SearchDialog::replace);
    connect(replace_all_button, &QPushButton::clicked, this, &SearchDialog::replace_all);
}

void SearchDialog::set_texts(QLabel *find_label, QLabel *replace_label)
{
    setWindowTitle(tr("Find and Replace"));
    find_label->setText(tr("Find:"));
    replace_label->setText(tr("Replace with:"));
    const int label_width = std::max(find_label->sizeHint().width(), replace_label->sizeHint().width());
    find_label->setMinimumWidth(label_width);
    replace_label->setMinimumWidth(label_width);
    search_input->setAccessibleName(tr("Find"));
    replace_input->setAccessibleName(tr("Replace with"));
    next_button->setText(tr("Find Next"));
    replace_button->setText(tr("Replace"));
    replace_all_button->setText(tr("Replace All"));
}

void SearchDialog::on_return_pressed()
{
    // A line edit goes on working after this signal, so it has to outlive a dialog that is deleted while a message box
    // is open.
    const QPointer<SearchDialog> here(this);
    QLineEdit *input = search_input;
    const bool was_in_use = std::exchange(m_search_input_in_use, true);
    find_next();
    if (here)
        m_search_input_in_use = was_in_use;
    else if (!was_in_use)
        input->deleteLater();
}

/// Shows a modal box; during Replace All one can leave from there. The dialog may be gone afterwards.
void SearchDialog::inform(const QString &title, const QString &text)
{
    const QPointer<SearchDialog> here(this);
    ReplaceRun *run = m_run;
    if (run)
        run->pause(); // which reports the change to whoever may delete anything
    if (!here || !editor)
        return;
    // On the heap: it is deleted with the dialog, should that happen while it is open.
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, this);
    QPushButton *stop = nullptr;
    if (run) {
        stop = box->addButton(tr("Stop"), QMessageBox::RejectRole);
        box->setDefaultButton(QMessageBox::Ok);
        box->setEscapeButton(QMessageBox::Ok);
    }
    bool is_answered = false;
    connect(box, &QDialog::finished, box, [&is_answered] { is_answered = true; });
    box->exec();
    if (!box)
        return;
    if (run) {
        // Without an answer the application is about to end, and no further box would wait for one.
        if (box->clickedButton() == stop || !is_answered)
            run->stop();
        run->resume();
    }
    delete box;
}

bool SearchDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != editor || event->spontaneous())
        return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::Hide && isVisible()) {
        hide();
        m_is_hidden_with_editor = true;
    } else if (event->type() == QEvent::Show && m_is_hidden_with_editor) {
        const bool takes_focus = !testAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_ShowWithoutActivating); // the person has gone to the text, not to the dialog
        show();
        setAttribute(Qt::WA_ShowWithoutActivating, !takes_focus);
    } else if (event->type() == QEvent::Show && isVisible()) {
        stay_on_top_of_editor(); // also after it has moved to another window
    }
    return QDialog::eventFilter(watched, event);
}

void SearchDialog::on_editor_destroyed()
{
    const QPointer<SearchDialog> here(this);
    editor.clear(); // a widget says that it is destroyed before its pointers know
    const auto boxes = findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QPointer<QDialog> &box : QList<QPointer<QDialog>>(boxes.begin(), boxes.end())) {
        if (box)
            box->close(); // it would go on asking about a text that is gone
    }
    if (here)
        close();
}

void SearchDialog::stay_on_top_of_editor()
{
    if (editor && windowHandle())
        windowHandle()->setTransientParent(editor->window()->windowHandle());
}

/// Moves off the match, and at first off the text.
void SearchDialog::go_out_of_the_way()
{
    if (!editor || !editor->isVisible())
        return;
    const QTextCursor cursor = editor->textCursor();
    QTextCursor start = cursor;
    start.setPosition(cursor.selectionStart());
    const QWidget *view = editor->viewport();
    const QRect seen = (editor->cursorRect(start) | editor->cursorRect(cursor)) & view->rect();
    const QRect match(view->mapToGlobal(seen.topLeft()), seen.size());
    if (testAttribute(Qt::WA_Moved) && !frameGeometry().intersects(match))
        return;
    const QRect text(view->mapToGlobal(QPoint()), view->size());
    const QRect window = editor->window()->frameGeometry();
    const QSize frame = window.size() - editor->window()->size(); // this dialog may not have one yet
    move(place_beside(match, text, window, editor->screen()->availableGeometry(), size() + frame, isRightToLeft()));
}

void SearchDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        m_is_hidden_with_editor = false;
        go_out_of_the_way();
        stay_on_top_of_editor();
        search_input->setFocus();
        search_input->selectAll();
        m_text->text(); // now rather than when Return is pressed
    }
    QDialog::showEvent(event);
}

void SearchDialog::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        m_text->forget();
    QDialog::hideEvent(event);
}

void SearchDialog::reject()
{
    m_is_hidden_with_editor = false;
    const QPointer<SearchDialog> here(this);
    clear_selection();
    if (here)
        QDialog::reject();
}

void SearchDialog::closeEvent(QCloseEvent *event)
{
    m_is_hidden_with_editor = false;
    const QPointer<SearchDialog> here(this);
    clear_selection();
    if (here)
        QDialog::closeEvent(event);
}

} // namespace my_classes
