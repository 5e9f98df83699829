// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "exporter.h"

#include "section_page.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QMarginsF>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextDocumentFragment>
#include <QtGui/QTextDocumentWriter>

#include <memory>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_margin = 20;              // millimetres
constexpr int k_characters_a_page = 2500; // about

/// A PDF that tells of each page, and ends where it is stopped.
class StoppablePdf : public QPdfWriter
{
public:
    StoppablePdf(QIODevice *device, const Progress &progress, int pages)
        : QPdfWriter(device)
        , m_progress(progress)
        , m_pages(pages)
    {
        setPageSize(QPageSize(QPageSize::A4));
        setPageMargins(QMarginsF(k_margin, k_margin, k_margin, k_margin), QPageLayout::Millimeter);
        setCreator(QCoreApplication::applicationName());
    }

    bool newPage() override
    {
        ++m_done;
        m_stopped = m_stopped || !m_progress(m_done, qMax(m_pages, m_done + 1));
        return !m_stopped && QPdfWriter::newPage();
    }

    bool was_stopped() const { return m_stopped; }

private:
    const Progress &m_progress;
    int m_pages;
    int m_done = 0;
    bool m_stopped = false;
};

/// Nothing if it was stopped.
QByteArray pdf_of(const QList<SectionPage *> &pages, const QString &title, const Progress &progress)
{
    qint64 characters = 0;
    QList<const my_classes::CustomTextEditor *> editors;
    for (SectionPage *page : pages) {
        editors.append(page->editor());
        characters += page->editor()->text_edit->document()->characterCount();
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    bool stopped = false;
    {
        StoppablePdf pdf(&buffer, progress, int(characters / k_characters_a_page) + int(pages.size()));
        pdf.setTitle(title);
        my_classes::CustomTextEditor::print_all_to(&pdf, editors, title);
        stopped = pdf.was_stopped();
    }
    return stopped ? QByteArray() : buffer.data();
}

/// All pages in one document, each on a new sheet; null if it was stopped.
std::unique_ptr<QTextDocument> joined(const QList<SectionPage *> &pages, const Progress &progress)
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(pages.constFirst()->editor()->editor_font);
    QTextCursor cursor(document.get());
    for (int i = 0; i < pages.size(); ++i) {
        if (!progress(i, int(pages.size())))
            return nullptr;
        const int start = i == 0 ? 0 : cursor.position() + 1;
        if (i > 0)
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        cursor.insertFragment(QTextDocumentFragment::fromHtml(pages.at(i)->html()));
        QTextBlockFormat on_new_sheet;
        on_new_sheet.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        if (i > 0)
            QTextCursor(document->findBlock(start)).mergeBlockFormat(on_new_sheet);
    }
    return document;
}

QByteArray odt_of(const QTextDocument &document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextDocumentWriter writer(&buffer, "ODF");
    if (!writer.write(&document))
        throw FileError(QObject::tr("The document cannot be written as ODT."));
    return buffer.data();
}

QByteArray text_of(const QTextDocument &document, const QString &suffix)
{
    if (suffix == "odt"_L1)
        return odt_of(document);
    if (suffix.startsWith("htm"_L1))
        return document.toHtml().toUtf8();
    if (suffix == "md"_L1 || suffix == "markdown"_L1)
        return document.toMarkdown().toUtf8();
    return document.toPlainText().toUtf8() + '\n';
}

} // namespace

QString export_filter()
{
    return QObject::tr("PDF (*.pdf);;OpenDocument text (*.odt);;HTML (*.html);;Markdown (*.md);;Plain text (*.txt)");
}

bool export_pages(const QList<SectionPage *> &pages, const QString &path, const QString &title,
                  const Progress &progress)
{
    for (int i = 0; i < pages.size(); ++i) {
        pages.at(i)->load();
        if (!progress(i, int(pages.size())))
            return false;
    }
    const QString suffix = QFileInfo(path).suffix().toLower();
    QByteArray bytes;
    if (suffix == "pdf"_L1) {
        bytes = pdf_of(pages, title, progress);
    } else if (const auto document = joined(pages, progress)) {
        document->setMetaInformation(QTextDocument::DocumentTitle, title);
        bytes = text_of(*document, suffix);
    }
    if (bytes.isEmpty())
        return false;
    write_file(path, bytes);
    return true;
}

} // namespace document_editor
