// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/page_printer.h"
#include "editor/print_copy.h"
#include "editor/wait_cursor.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QPdfWriter>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

namespace my_classes {

namespace {

void set_title(QPagedPaintDevice *device, const QString &title)
{
    if (auto *printer = dynamic_cast<QPrinter *>(device))
        printer->setDocName(title);
    else if (auto *writer = dynamic_cast<QPdfWriter *>(device))
        writer->setTitle(title);
}

} // namespace

void CustomTextEditor::print_document()
{
    QPrinter printer(QPrinter::HighResolution);
    // On the heap: an editor that dies while the dialog is open takes it with it.
    const QPointer<QPrintDialog> dialog(new QPrintDialog(&printer, this));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    delete dialog.data();
    if (accepted)
        print_to(&printer);
}

void CustomTextEditor::print_to(QPagedPaintDevice *device, const QString &title) const
{
    print_all_to(device, {this}, title);
}

void CustomTextEditor::print_all_to(QPagedPaintDevice *device, const QList<const CustomTextEditor *> &editors,
                                    const QString &title)
{
    if (!device)
        return;
    const WaitCursor wait;
    if (!title.isEmpty())
        set_title(device, title);
    std::vector<std::unique_ptr<QTextDocument>> copies;
    for (const CustomTextEditor *editor : editors) {
        if (editor)
            copies.push_back(print_copy(editor->text_edit->document(), editor->unzoomed_font(), device));
    }
    print_pages(device, copies);
}

} // namespace my_classes
