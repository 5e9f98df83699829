// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "exporter.h"
#include "recovery_file.h"

#include <my_classes/editor_command.h>

#include <QtCore/QTimer>
#include <QtGui/QKeySequence>
#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QLabel;
class QPrinter;
QT_END_NAMESPACE

namespace my_classes {
class CustomTextEditor;
}

namespace document_editor {

class Autosave;
class FileWatch;
class LoadingBar;
class SectionPage;
class SectionTabs;

/// A window with one document. Deletes itself when it is closed.
class Window : public QMainWindow
{
    Q_OBJECT

public:
    /// With an empty document, and a recovery file of its own or one that was left behind.
    explicit Window(std::unique_ptr<RecoveryFile> recovery = std::make_unique<RecoveryFile>());
    ~Window() override;

    /// Opens a document, here if this one is untouched, else in another window. What is no document is offered for
    /// import; what cannot be opened is told, and changes nothing.
    void open(const QString &path);
    /// As one that is not saved yet, for what its recovery file holds.
    void show_document(const Document &document, bool modified = true);
    bool save();
    bool save_as();
    void import_files(const QStringList &paths);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Menus.
    void create_menus();
    void create_file_menu();
    void create_edit_menu();
    void create_insert_menu();
    void create_format_menu();
    void create_section_menu();
    void create_spelling_menu();
    void create_view_menu();
    void create_help_menu();
    void add_command(QMenu *menu, my_classes::EditorCommand command, const QString &text, const QKeySequence &key = {});
    void fill_language_menu(QMenu *menu);
    void add_preference(QMenu *menu, const QString &text, const std::function<bool()> &is_on,
                        const std::function<void(bool)> &set);
    void follow_commands(SectionPage *page);
    void mirror_commands();

    // Editors.
    void prepare_page(SectionPage *page);
    void follow_current_page();
    my_classes::CustomTextEditor *editor() const;
    void find_text();
    void find_next();
    void check_spelling();
    void show_counts();

    // Files.
    void new_section();
    void choose_files_to_open();
    void choose_files_to_import();
    static Window *window_of(const QString &path);
    std::optional<Document> read(const QString &path);
    bool write_to(const QString &path);
    bool may_lose_changes();
    void file_has_changed();
    bool load_again();
    void offer_import(const QString &path);
    void download();
    void export_to_file(const QList<SectionPage *> &pages, const QString &name);
    void print();
    void preview_print();
    void print_pages(QPrinter *printer);
    void set_path(const QString &path, const QString &stamp = {});
    QString name() const;
    QString directory() const;
    void complain(const QString &reason);

    SectionTabs *m_tabs;
    Autosave *m_autosave;
    FileWatch *m_watch;
    LoadingBar *m_loading;
    QLabel *m_counts;
    QTimer m_counting;
    QLabel *m_problem;
    QList<std::pair<my_classes::EditorCommand, QAction *>> m_commands;
    QString m_path; // empty: never saved
    bool m_asks_about_file = false;
};

} // namespace document_editor
