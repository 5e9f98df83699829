// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "format_commands.h"
#include "preferences.h"
#include "recent_files.h"
#include "section_page.h"
#include "section_tabs.h"
#include "window.h"

#include <my_classes/my_spellchecker.h>
#include <my_classes/search_dialog.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>

namespace document_editor {

using namespace Qt::StringLiterals;
using my_classes::CustomTextEditor;
using my_classes::EditorCommand;
using my_spellchecker::MySpellChecker;

namespace {

constexpr int k_heading_levels = 4;
constexpr int k_message_time = 5000; // milliseconds

void mirror(const QAction *own, QAction *item)
{
    if (item->icon().isNull())
        item->setIcon(own->icon());
    item->setEnabled(own->isEnabled());
    item->setCheckable(own->isCheckable());
    item->setChecked(own->isChecked());
}

} // namespace

void Window::create_menus()
{
    create_file_menu();
    create_edit_menu();
    create_insert_menu();
    create_format_menu();
    create_section_menu();
    create_spelling_menu();
    create_view_menu();
    create_help_menu();
}

/// The item is enabled and checked as the command of the current editor is.
void Window::add_command(QMenu *menu, EditorCommand command, const QString &text, const QKeySequence &key)
{
    QAction *item = menu->addAction(text, key, this, [this, command] {
        editor()->action(command)->trigger();
        mirror_commands(); // a checkable one has switched itself
    });
    m_commands.append({command, item});
}

void Window::follow_commands(SectionPage *page)
{
    for (const auto &[command, item] : std::as_const(m_commands)) {
        const QAction *own = page->editor()->action(command);
        connect(own, &QAction::changed, this, [this, page, own, item = item] {
            if (page == m_tabs->current_page())
                mirror(own, item);
        });
    }
}

void Window::mirror_commands()
{
    for (const auto &[command, item] : std::as_const(m_commands))
        mirror(editor()->action(command), item);
}

/// An item that shows a preference and sets it.
void Window::add_preference(QMenu *menu, const QString &text, const std::function<bool()> &is_on,
                            const std::function<void(bool)> &set)
{
    QAction *item = menu->addAction(text);
    item->setCheckable(true);
    const auto show = [item, is_on] { item->setChecked(is_on()); };
    connect(item, &QAction::triggered, this, set);
    connect(&Preferences::instance(), &Preferences::changed, item, show);
    show();
}

void Window::create_file_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&New"), QKeySequence::New, this, [] { (new Window)->show(); });
    menu->addAction(tr("&Open…"), QKeySequence::Open, this, &Window::choose_files_to_open);
    QMenu *recent = menu->addMenu(tr("Open &Recent"));
    recent->setToolTipsVisible(true);
    connect(recent, &QMenu::aboutToShow, this,
            [this, recent] { fill_recent_files(recent, [this](const QString &path) { open(path); }); });
    menu->addSeparator();
    menu->addAction(tr("&Save"), QKeySequence::Save, this, &Window::save);
    menu->addAction(tr("Save &As…"), QKeySequence::SaveAs, this, &Window::save_as);
    menu->addSeparator();
    menu->addAction(tr("&Import as Sections…"), this, &Window::choose_files_to_import);
    menu->addAction(tr("&Download into a Section…"), this, &Window::download);
    menu->addAction(tr("&Export Document…"), QKeySequence(u"Ctrl+Shift+E"_s), this,
                    [this] { export_to_file(m_tabs->pages(), QFileInfo(name()).completeBaseName()); });
    menu->addAction(tr("E&xport Section…"), this,
                    [this] { export_to_file({m_tabs->current_page()}, m_tabs->tabText(m_tabs->currentIndex())); });
    menu->addSeparator();
    menu->addAction(tr("Print Pre&view…"), this, &Window::preview_print);
    menu->addAction(tr("&Print…"), QKeySequence::Print, this, &Window::print);
    add_command(menu, EditorCommand::Print, tr("Print Se&ction…"));
    menu->addSeparator();
    menu->addAction(tr("C&lose Window"), QKeySequence(u"Ctrl+Shift+W"_s), this, &QWidget::close);
    menu->addAction(tr("&Quit"), QKeySequence(u"Ctrl+Q"_s), qApp, &QApplication::closeAllWindows);
}

void Window::create_edit_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    add_command(menu, EditorCommand::Undo, tr("&Undo"), QKeySequence::Undo);
    add_command(menu, EditorCommand::Redo, tr("&Redo"), QKeySequence::Redo);
    menu->addSeparator();
    add_command(menu, EditorCommand::Cut, tr("Cu&t"), QKeySequence::Cut);
    add_command(menu, EditorCommand::Copy, tr("&Copy"), QKeySequence::Copy);
    add_command(menu, EditorCommand::Paste, tr("&Paste"), QKeySequence::Paste);
    add_command(menu, EditorCommand::PasteUnformatted, tr("Paste U&nformatted"), QKeySequence(u"Ctrl+Shift+V"_s));
    add_command(menu, EditorCommand::SelectAll, tr("Select &All"), QKeySequence::SelectAll);
    menu->addSeparator();
    menu->addAction(tr("&Find and Replace…"), QKeySequence::Find, this, &Window::find_text);
    menu->addAction(tr("Find Ne&xt"), QKeySequence(u"F3"_s), this, &Window::find_next);
    menu->addSeparator();
    QAction *restore =
        menu->addAction(tr("Restore &Section"), QKeySequence(u"Ctrl+Shift+T"_s), m_tabs, &SectionTabs::restore_section);
    const auto enable = [this, restore] { restore->setEnabled(m_tabs->can_restore_section()); };
    connect(m_tabs, &SectionTabs::modified_changed, restore, enable);
    enable();
}

void Window::create_insert_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Insert"));
    add_command(menu, EditorCommand::InsertImage, tr("&Picture…"));
    add_command(menu, EditorCommand::InsertTable, tr("&Table…"));
    menu->addSeparator();
    add_command(menu, EditorCommand::InsertRowAbove, tr("Row &Above"));
    add_command(menu, EditorCommand::InsertRowBelow, tr("Row &Below"));
    add_command(menu, EditorCommand::InsertColumnBefore, tr("Column Be&fore"));
    add_command(menu, EditorCommand::InsertColumnAfter, tr("Column Aft&er"));
    menu->addSeparator();
    add_command(menu, EditorCommand::RemoveRows, tr("Remove &Rows"));
    add_command(menu, EditorCommand::RemoveColumns, tr("Remove &Columns"));
}

void Window::create_format_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("F&ormat"));
    add_command(menu, EditorCommand::Bold, tr("&Bold"), QKeySequence::Bold);
    add_command(menu, EditorCommand::Italic, tr("&Italic"), QKeySequence::Italic);
    add_command(menu, EditorCommand::Underline, tr("&Underline"), QKeySequence::Underline);
    menu->addAction(tr("Text &Colour…"), this, [this] {
        choose_colour(editor(), tr("Text Colour"), &QTextFormat::foreground, &QTextFormat::setForeground);
    });
    menu->addAction(tr("Bac&kground Colour…"), this, [this] {
        choose_colour(editor(), tr("Background Colour"), &QTextFormat::background, &QTextFormat::setBackground);
    });
    add_command(menu, EditorCommand::ClearFormatting, tr("Clear &Formatting"), QKeySequence(u"F8"_s));
    menu->addSeparator();

    QMenu *headings = menu->addMenu(tr("&Heading"));
    for (int level = 0; level <= k_heading_levels; ++level) {
        const QString text = level == 0 ? tr("&Text") : tr("Heading &%1").arg(level);
        QAction *item = headings->addAction(text, QKeySequence(u"Ctrl+Alt+%1"_s.arg(level)), this,
                                            [this, level] { set_heading(editor(), level); });
        item->setCheckable(true);
        connect(headings, &QMenu::aboutToShow, item,
                [this, item, level] { item->setChecked(heading_level(editor()) == level); });
    }
    QMenu *spacings = menu->addMenu(tr("Line &Spacing"));
    for (const double factor : {1.0, 1.15, 1.5, 2.0})
        spacings->addAction(QLocale().toString(factor), this, [this, factor] { set_line_spacing(editor(), factor); });
    QMenu *alignments = menu->addMenu(tr("&Alignment"));
    add_command(alignments, EditorCommand::JustifyLeft, tr("&Left"), QKeySequence(u"Ctrl+L"_s));
    add_command(alignments, EditorCommand::JustifyCenter, tr("&Centre"), QKeySequence(u"Ctrl+E"_s));
    add_command(alignments, EditorCommand::JustifyRight, tr("&Right"), QKeySequence(u"Ctrl+R"_s));
    add_command(alignments, EditorCommand::JustifyFull, tr("&Justified"), QKeySequence(u"Ctrl+J"_s));
    QMenu *lists = menu->addMenu(tr("&List"));
    add_command(lists, EditorCommand::NumberedList, tr("&Numbers"));
    add_command(lists, EditorCommand::BulletListDisc, tr("&Discs"));
    add_command(lists, EditorCommand::BulletListSquare, tr("&Squares"));
}

void Window::create_section_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Section"));
    const auto go = [this](int step) {
        return [this, step] { m_tabs->setCurrentIndex(qBound(0, m_tabs->currentIndex() + step, m_tabs->count() - 1)); };
    };
    const auto move = [this](int step) {
        return [this, step] {
            const int to = m_tabs->currentIndex() + step;
            if (to >= 0 && to < m_tabs->count())
                m_tabs->tabBar()->moveTab(m_tabs->currentIndex(), to);
        };
    };
    menu->addAction(tr("&New Section"), QKeySequence::AddTab, this, &Window::new_section);
    menu->addAction(tr("&Rename Section…"), QKeySequence(u"F2"_s), this,
                    [this] { m_tabs->editTabTitle(m_tabs->currentIndex()); });
    menu->addAction(tr("&Close Section"), QKeySequence(u"Ctrl+W"_s), this,
                    [this] { m_tabs->closeTab(m_tabs->currentIndex()); });
    menu->addSeparator();
    menu->addAction(tr("&Previous Section"), QKeySequence(u"Ctrl+PgUp"_s), this, go(-1));
    menu->addAction(tr("Ne&xt Section"), QKeySequence(u"Ctrl+PgDown"_s), this, go(1));
    menu->addAction(tr("Move to the &Front"), QKeySequence(u"Ctrl+Shift+PgUp"_s), this, move(-1));
    menu->addAction(tr("Move to the &Back"), QKeySequence(u"Ctrl+Shift+PgDown"_s), this, move(1));
}

void Window::create_spelling_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("S&pelling"));
    menu->addAction(tr("&Check Spelling"), QKeySequence(u"F7"_s), this, &Window::check_spelling);
    add_preference(
        menu, tr("&Mark While Writing"), [] { return Preferences::instance().marks_while_writing(); },
        [](bool on) { Preferences::instance().set_marks_while_writing(on); });
    menu->addSeparator();
    add_command(menu, EditorCommand::Correct, tr("C&orrect"));
    add_command(menu, EditorCommand::AppendToDictionary, tr("&Append to Dictionary"));
    menu->addSeparator();
    QMenu *languages = menu->addMenu(tr("&Language of the Section"));
    connect(languages, &QMenu::aboutToShow, this, [this, languages] { fill_language_menu(languages); });
}

void Window::fill_language_menu(QMenu *menu)
{
    menu->clear();
    const QString present = m_tabs->current_page()->language();
    const auto add = [this, menu, present](const QString &language, const QString &text) {
        QAction *action = menu->addAction(text, this, [this, language] {
            m_tabs->current_page()->set_language(language);
            Preferences::instance().set_language(language);
        });
        action->setCheckable(true);
        action->setChecked(language == present);
    };
    QStringList languages = MySpellChecker::installed_languages();
    if (!present.isEmpty() && !languages.contains(present))
        languages.prepend(present);
    for (const QString &language : std::as_const(languages))
        add(language, MySpellChecker::language_name(language));
    menu->addSeparator();
    add({}, tr("None"));
}

void Window::create_view_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    add_preference(
        menu, tr("&Page Width"), [] { return Preferences::instance().shows_page(); },
        [](bool on) { Preferences::instance().set_shows_page(on); });
    QMenu *papers = menu->addMenu(tr("P&aper"));
    const std::pair<Paper, QString> all[] = {
        {Paper::System, tr("As the &System")}, {Paper::Light, tr("&Light")}, {Paper::Dark, tr("&Dark")}};
    for (const auto &[paper, text] : all) {
        add_preference(
            papers, text, [paper = paper] { return Preferences::instance().paper() == paper; },
            [paper = paper](bool) { Preferences::instance().set_paper(paper); });
    }
    menu->addSeparator();
    menu->addAction(tr("Zoom &In"), QKeySequence::ZoomIn, this, [this] { editor()->zoom_in(); });
    menu->addAction(tr("Zoom &Out"), QKeySequence::ZoomOut, this, [this] { editor()->zoom_out(); });
    menu->addAction(tr("&Normal Size"), QKeySequence(u"Ctrl+0"_s), this, [this] { reset_zoom(editor()); });
    menu->addSeparator();
    QAction *full_screen = menu->addAction(tr("&Full Screen"), QKeySequence(u"F11"_s));
    full_screen->setCheckable(true);
    connect(full_screen, &QAction::triggered, this,
            [this](bool on) { setWindowState(windowState().setFlag(Qt::WindowFullScreen, on)); });
}

void Window::create_help_menu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&About Document Editor"), this, [this] {
        QMessageBox::about(this, tr("About Document Editor"),
                           tr("Writes documents of several sections, each a page of its own.\n\n"
                              "Assembled from the widgets of my_classes %1.")
                               .arg(QCoreApplication::applicationVersion()));
    });
    menu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void Window::find_text()
{
    if (!editor()->search_dialog || !editor()->search_dialog->isVisible()) {
        editor()->search_text();
        return;
    }
    editor()->search_dialog->raise();
    editor()->search_dialog->activateWindow();
}

void Window::find_next()
{
    if (editor()->search_dialog)
        editor()->search_dialog->find_next();
    else
        editor()->search_text();
}

void Window::check_spelling()
{
    CustomTextEditor *checked = editor();
    if (checked->lang.isEmpty()) {
        statusBar()->showMessage(tr("The section has no language whose spelling can be checked."), k_message_time);
        return;
    }
    const auto show = [this, checked](const QSet<QString> &misspelled) {
        if (misspelled.isEmpty())
            statusBar()->showMessage(tr("No misspelled words"), k_message_time);
        else
            checked->show_first_misspelled(misspelled);
        checked->update_from_cursor(); // offers the suggestions for it
    };
    connect(checked, &CustomTextEditor::check_spelling_done, this, show, Qt::SingleShotConnection);
    checked->check_spelling();
}

} // namespace document_editor
