// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "autosave.h"
#include "file_watch.h"
#include "importer.h"
#include "loading_bar.h"
#include "opener.h"
#include "preferences.h"
#include "progress_box.h"
#include "recent_files.h"
#include "section_page.h"
#include "section_tabs.h"
#include "window.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>

namespace document_editor {

using namespace Qt::StringLiterals;
using my_classes::DownloadDialog;
using my_classes::DownloadOutcome;

namespace {

constexpr int k_address_width = 500; // pixels
constexpr int k_message_time = 5000; // milliseconds

QString with_document_suffix(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == "html"_L1 || suffix == "htm"_L1 ? path : path + ".html"_L1;
}

} // namespace

void Window::new_section()
{
    m_tabs->add_section({tr("Section"), Preferences::instance().language(), {}});
}

void Window::choose_files_to_open()
{
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Open"), directory(), tr("Documents (*.html);;All files (*)"));
    for (const QString &path : paths)
        open(path);
}

void Window::open(const QString &path)
{
    if (Window *window = window_of(path)) {
        window->activateWindow();
        return;
    }
    const QPointer<Window> here(this);
    try {
        const std::optional<Document> document = read(path);
        if (!here || !document)
            return;
        Window *window = m_tabs->is_untouched() && m_path.isEmpty() ? this : new Window;
        window->show_document(*document, false);
        window->show();
        add_recent_file(path);
    } catch (const ForeignFile &) {
        if (here)
            offer_import(path);
    } catch (const FileError &error) {
        if (here)
            complain(tr("“%1” cannot be opened.\n\n%2").arg(QFileInfo(path).fileName(), error.reason()));
    }
}

/// The window in which the document is open.
Window *Window::window_of(const QString &path)
{
    const QFileInfo file(path);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        auto *window = qobject_cast<Window *>(widget);
        if (window && !window->m_path.isEmpty() && QFileInfo(window->m_path) == file)
            return window;
    }
    return nullptr;
}

std::optional<Document> Window::read(const QString &path)
{
    const QString stamp = FileWatch::stamp_of(path); // before it may change
    std::optional<Document> document = read_document(path, this);
    if (document) {
        document->origin = QFileInfo(path).absoluteFilePath();
        document->origin_stamp = stamp;
    }
    return document;
}

void Window::show_document(const Document &document, bool modified)
{
    m_tabs->set_document(document, modified);
    set_path(document.origin, document.origin_stamp);
    m_loading->start();
}

bool Window::save()
{
    if (m_path.isEmpty())
        return save_as();
    if (m_watch->has_changed()) {
        const auto answer =
            QMessageBox::question(this, tr("Save"), tr("“%1” was changed by another program. Replace it?").arg(name()),
                                  QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Yes)
            return false;
    }
    return write_to(m_path);
}

bool Window::save_as()
{
    QFileDialog dialog(this, tr("Save As"), directory(), tr("Documents (*.html)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"html"_s);
    dialog.selectFile(m_path.isEmpty() ? tr("Untitled.html") : name());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const QString chosen = dialog.selectedFiles().value(0);
    const QString path = with_document_suffix(chosen);
    if (path != chosen && QFileInfo::exists(path)) { // the dialog asked for the other name
        const auto answer =
            QMessageBox::question(this, tr("Save As"), tr("“%1” exists. Replace it?").arg(QFileInfo(path).fileName()),
                                  QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Yes)
            return false;
    }
    return write_to(path);
}

bool Window::write_to(const QString &path)
{
    try {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        write_file(path, to_bytes(m_tabs->document()));
        QApplication::restoreOverrideCursor();
    } catch (const FileError &error) {
        QApplication::restoreOverrideCursor();
        complain(tr("The document was not saved.\n\n%1").arg(error.reason()));
        return false;
    }
    m_tabs->set_modified(false);
    set_path(QFileInfo(path).absoluteFilePath(), FileWatch::stamp_of(path));
    add_recent_file(path);
    statusBar()->showMessage(tr("Saved"), k_message_time);
    return true;
}

bool Window::may_lose_changes()
{
    if (!m_tabs->is_modified())
        return true;
    const auto answer = QMessageBox::warning(this, tr("Document Editor"), tr("Save the changes to “%1”?").arg(name()),
                                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void Window::file_has_changed()
{
    if (m_asks_about_file || !isActiveWindow() || !m_watch->has_changed())
        return;
    m_asks_about_file = true;
    const QString question = m_tabs->is_modified()
                                 ? tr("“%1” was changed by another program. Load it, and lose what you changed here?")
                                 : tr("“%1” was changed by another program. Load it again?");
    const auto answer = QMessageBox::question(this, tr("Document Editor"), question.arg(name()));
    m_asks_about_file = false;
    if (answer == QMessageBox::Yes && load_again())
        return;
    set_path(m_path, FileWatch::stamp_of(m_path));
    m_tabs->set_modified(true); // this is not what the file holds
}

bool Window::load_again()
{
    const QPointer<Window> here(this);
    try {
        const std::optional<Document> document = read(m_path);
        if (here && document)
            show_document(*document, false);
        return !here || document;
    } catch (const FileError &error) {
        if (here)
            complain(error.reason());
        return !here;
    }
}

void Window::choose_files_to_import()
{
    import_files(QFileDialog::getOpenFileNames(this, tr("Import"), directory(), import_filter()));
}

void Window::offer_import(const QString &path)
{
    const QString question = tr("“%1” is no document of this program. Import it as a new section?");
    if (QMessageBox::question(this, tr("Open"), question.arg(QFileInfo(path).fileName())) == QMessageBox::Yes)
        import_files({path});
}

void Window::import_files(const QStringList &paths)
{
    for (const QString &path : paths) {
        try {
            Section section = import_section(path);
            section.language = Preferences::instance().language();
            m_tabs->add_section(section);
        } catch (const FileError &error) {
            complain(tr("“%1” cannot be imported.\n\n%2").arg(QFileInfo(path).fileName(), error.reason()));
        }
    }
}

void Window::download()
{
    QInputDialog question(this);
    question.setWindowTitle(tr("Download into a Section"));
    question.setLabelText(tr("Address:"));
    question.resize(k_address_width, question.sizeHint().height());
    const bool accepted = question.exec() == QDialog::Accepted;
    const QString address = question.textValue().trimmed();
    if (!accepted || address.isEmpty())
        return;
    const QTemporaryDir folder;
    const QString name = QFileInfo(QUrl(address).path()).fileName();
    const QString path = folder.filePath(name.isEmpty() ? u"index.html"_s : name);
    DownloadDialog dialog(address, path, tr("Downloading %1").arg(address), this);
    connect(&dialog, &DownloadDialog::download_ended, &dialog, &QWidget::close); // the reason comes in a box
    dialog.exec();
    if (dialog.outcome() == DownloadOutcome::Completed)
        import_files({path});
    else if (dialog.outcome() == DownloadOutcome::Failed)
        complain(tr("%1 was not downloaded.\n\n%2").arg(address, dialog.error_text()));
}

void Window::export_to_file(const QList<SectionPage *> &pages, const QString &title)
{
    QFileDialog dialog(this, tr("Export"), directory(), export_filter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog](const QString &filter) { dialog.setDefaultSuffix(filter.section(u"*."_s, 1).chopped(1)); });
    dialog.selectFile(title + ".pdf"_L1);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    if (!m_path.isEmpty() && QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(m_path)) {
        complain(tr("That is the document itself. Choose another name for what is exported."));
        return;
    }

    const QPointer<Window> here(this);
    ProgressBox box(tr("Exporting %1").arg(QFileInfo(path).fileName()), this);
    try {
        const bool done =
            export_pages(pages, path, title, [&box](int so_far, int all) { return box.show(so_far, all); });
        if (!here)
            return;
        statusBar()->showMessage(done ? tr("Exported to %1").arg(path) : tr("Nothing was exported"), k_message_time);
    } catch (const FileError &error) {
        complain(tr("“%1” cannot be written.\n\n%2").arg(path, error.reason()));
    }
}

void Window::print_pages(QPrinter *printer)
{
    QList<const my_classes::CustomTextEditor *> editors;
    const QList<SectionPage *> pages = m_tabs->pages();
    for (SectionPage *page : pages)
        editors.append(page->editor());
    my_classes::CustomTextEditor::print_all_to(printer, editors, QFileInfo(name()).completeBaseName());
}

void Window::print()
{
    QPrinter printer(QPrinter::HighResolution);
    if (QPrintDialog(&printer, this).exec() == QDialog::Accepted)
        print_pages(&printer);
}

void Window::preview_print()
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, this);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, &Window::print_pages);
    dialog.exec();
}

} // namespace document_editor
