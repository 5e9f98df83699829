// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/pictures.h"

#include <my_classes/custom_text_editor.h>

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

namespace my_classes {

void CustomTextEditor::print_document()
{
    QPrinter printer(QPrinter::HighResolution);
    // On the heap: an editor that dies while the dialog is open takes it with it.
    const QPointer<QPrintDialog> dialog(new QPrintDialog(&printer, this));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    delete dialog.data();
    if (!accepted)
        return;
    const QuietCodecs large_pictures_print_too;
    unzoomed_copy()->print(&printer); // a copy carries no spelling underlines either
}

} // namespace my_classes
