// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// Documents in tabs, and a download:
//     tabs_and_download [URL FILE]

#include <my_classes/my_classes.h>

#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtWidgets/QApplication>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

#include <memory>

using namespace my_classes;

namespace {

class Window : public QMainWindow
{
public:
    Window()
    {
        setCentralWidget(m_tabs);
        // Renaming a tab is the widget's own affair: double click, or F2 on the tab bar.
        connect(m_tabs, &EditableTabWidget::tab_moved, this,
                [this](int from, int to) { statusBar()->showMessage(tr("Tab %1 moved to %2").arg(from).arg(to)); });
        connect(m_tabs, &EditableTabWidget::tab_renamed, this,
                [this](QWidget *, const QString &before, const QString &after) {
                    statusBar()->showMessage(tr("%1 is now %2").arg(before, after));
                });
        connect(m_tabs, &EditableTabWidget::tab_removed, this, [this](QWidget *page, const QString &title) {
            statusBar()->showMessage(tr("Deleted: %1").arg(title));
            page->deleteLater(); // a removed page is the host's
        });

        QMenu *file = menuBar()->addMenu(tr("&File"));
        file->addAction(tr("&New tab"), QKeySequence::AddTab, this, &Window::add_document);
        file->addAction(tr("&Close tab"), QKeySequence::Close, this,
                        [this] { m_tabs->closeTab(m_tabs->currentIndex()); });
        file->addAction(tr("&Download..."), this, [this] {
            const QString url = QInputDialog::getText(this, tr("Download"), tr("Address:"));
            const QString path = url.isEmpty() ? url : QInputDialog::getText(this, tr("Download"), tr("File:"));
            if (!path.isEmpty())
                download(url, path);
        });
        if (m_language.isEmpty())
            statusBar()->showMessage(tr("No English dictionary is installed: spelling is not checked."));
        add_document();
        add_document();
        add_document();
        resize(1100, 600);
    }

    void download(const QString &url, const QString &path)
    {
        // A dialog may be destroyed at any moment; this one lives until the next download.
        m_download = std::make_unique<DownloadDialog>(url, path, tr("Downloading %1").arg(url), this);
        connect(m_download.get(), &DownloadDialog::download_ended, this, [this](DownloadOutcome outcome) {
            statusBar()->showMessage(outcome == DownloadOutcome::Completed ? tr("Downloaded")
                                     : outcome == DownloadOutcome::Cancelled
                                         ? tr("Download cancelled")
                                         : tr("Not downloaded: %1").arg(m_download->error_text()));
        });
        m_download->show();
    }

private:
    void add_document()
    {
        auto *page = new CustomTab({}, {}, m_language);
        connect(page, &CustomTab::text_changed, this, [this, page] {
            statusBar()->showMessage(tr("%n character(s)", "", int(page->get_text_content().size())));
        });
        m_tabs->setCurrentIndex(m_tabs->addTab(page, m_tabs->unique_title(tr("Document"))));
    }

    const QString m_language =
        my_spellchecker::MySpellChecker::is_available(QStringLiteral("en")) ? QStringLiteral("en") : QString();
    EditableTabWidget *m_tabs = new EditableTabWidget;
    std::unique_ptr<DownloadDialog> m_download;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Window window;
    window.show();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3)
        window.download(arguments[1], arguments[2]);
    return QApplication::exec();
}
