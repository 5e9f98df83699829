// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "window.h"

#include "autosave.h"
#include "context_menu.h"
#include "file_watch.h"
#include "format_commands.h"
#include "loading_bar.h"
#include "page_look.h"
#include "preferences.h"
#include "section_page.h"
#include "section_tabs.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtGui/QCloseEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QImageReader>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <functional>

namespace document_editor {

using namespace Qt::StringLiterals;
using my_classes::CustomTextEditor;

namespace {

constexpr QSize k_first_size(1000, 760); // pixels
constexpr int k_counts_delay = 200;      // milliseconds; not at every key
const QString k_geometry_key = u"geometry"_s;

/// The files of a drop; none if it is anything else, or a picture, which the text takes.
QStringList dropped_files(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> addresses = data->urls();
    for (const QUrl &address : addresses) {
        const QString path = address.toLocalFile();
        if (path.isEmpty() || !QImageReader::imageFormat(path).isEmpty())
            return {};
        paths.append(path);
    }
    return paths;
}

} // namespace

Window::Window(std::unique_ptr<RecoveryFile> recovery)
    : m_tabs(new SectionTabs)
    , m_watch(new FileWatch(this))
    , m_loading(new LoadingBar(m_tabs))
    , m_counts(new QLabel)
    , m_problem(new QLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setCentralWidget(m_tabs);
    create_menus();
    m_problem->hide();
    statusBar()->addWidget(m_problem);
    statusBar()->addPermanentWidget(m_loading);
    statusBar()->addPermanentWidget(m_counts);

    connect(m_tabs, &SectionTabs::page_loaded, this, &Window::prepare_page);
    connect(m_tabs, &SectionTabs::currentChanged, this, &Window::follow_current_page);
    m_counting.setSingleShot(true);
    m_counting.setInterval(k_counts_delay);
    connect(&m_counting, &QTimer::timeout, this, &Window::show_counts);
    connect(m_tabs, &SectionTabs::counts_changed, this, [this] {
        if (!m_counting.isActive())
            m_counting.start();
    });
    connect(m_tabs, &SectionTabs::modified_changed, this, [this] { setWindowModified(m_tabs->is_modified()); });
    connect(m_watch, &FileWatch::changed, this, &Window::file_has_changed);
    setAcceptDrops(true);
    installEventFilter(this);
    m_tabs->set_document({});

    m_autosave = new Autosave(m_tabs, std::move(recovery), this); // last: the empty document is not the one in the file
    connect(m_autosave, &Autosave::problem_changed, this, [this](const QString &reason) {
        m_problem->setText(tr("No recovery copy can be written: %1").arg(reason));
        m_problem->setVisible(!reason.isEmpty());
    });
    set_path({});
    if (!restoreGeometry(QSettings().value(k_geometry_key).toByteArray()))
        resize(k_first_size.boundedTo(screen()->availableSize() * 9 / 10));
}

Window::~Window()
{
    m_tabs->disconnect(this); // pages die with it, and tell
}

CustomTextEditor *Window::editor() const
{
    return m_tabs->current_page()->editor();
}

void Window::prepare_page(SectionPage *page)
{
    CustomTextEditor *editor = page->editor();
    editor->set_shortcuts_enabled(false); // the menus have them
    connect_font_boxes(editor);
    new PageLook(editor);
    offer_suggestions(editor);
    follow_commands(page);
    editor->text_edit->viewport()->installEventFilter(this); // drops
    const auto follow_preferences = [editor] {
        editor->set_marking_while_writing(Preferences::instance().marks_while_writing());
    };
    connect(&Preferences::instance(), &Preferences::changed, editor, follow_preferences);
    follow_preferences();
}

void Window::follow_current_page()
{
    if (!m_tabs->current_page()) // between the last one and a new one
        return;
    mirror_commands();
    show_counts();
}

void Window::show_counts()
{
    if (!m_tabs->current_page())
        return;
    qint64 words = 0;
    const QList<SectionPage *> pages = m_tabs->pages();
    for (const SectionPage *page : pages)
        words += page->counts().words;
    const bool all = std::all_of(pages.begin(), pages.end(), std::mem_fn(&SectionPage::is_loaded));
    const QString text = all ? tr("Words: %1 in the section, %2 in the document")
                             : tr("Words: %1 in the section, more than %2 in the document");
    const QLocale locale;
    m_counts->setText(text.arg(locale.toString(m_tabs->current_page()->counts().words), locale.toString(words)));
}

void Window::set_path(const QString &path, const QString &stamp)
{
    m_path = path;
    m_watch->follow(path, stamp);
    m_autosave->set_origin(path, stamp);
    setWindowTitle(tr("%1[*] - Document Editor").arg(name().replace("[*]"_L1, "[*][*]"_L1)));
    setWindowModified(m_tabs->is_modified());
}

QString Window::name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
}

/// Where files are looked for, and put.
QString Window::directory() const
{
    return m_path.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                            : QFileInfo(m_path).path();
}

void Window::complain(const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Document Editor"), reason, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void Window::closeEvent(QCloseEvent *event)
{
    if (!may_lose_changes()) {
        event->ignore();
        return;
    }
    QSettings().setValue(k_geometry_key, saveGeometry());
    m_autosave->stop();
    event->accept();
}

void Window::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_watch->has_changed())
        QMetaObject::invokeMethod(this, &Window::file_has_changed, Qt::QueuedConnection);
}

bool Window::eventFilter(QObject *watched, QEvent *event)
{
    const bool is_drop =
        event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove || event->type() == QEvent::Drop;
    const QStringList paths = is_drop ? dropped_files(static_cast<QDropEvent *>(event)->mimeData()) : QStringList();
    if (paths.isEmpty())
        return QMainWindow::eventFilter(watched, event);
    static_cast<QDropEvent *>(event)->acceptProposedAction();
    if (event->type() == QEvent::Drop) { // the other program waits for the end of the event
        const auto open_all = [this, paths] {
            for (const QString &path : paths)
                open(path);
        };
        QMetaObject::invokeMethod(this, open_all, Qt::QueuedConnection);
    }
    return true;
}

} // namespace document_editor
