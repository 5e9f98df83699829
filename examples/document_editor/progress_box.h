// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QProgressDialog>

namespace document_editor {

/// Shows how far a long work is, once that has taken a moment, and lets the person stop it. The parent may go
/// meanwhile.
class ProgressBox
{
public:
    ProgressBox(const QString &text, QWidget *parent)
        : m_dialog(new QProgressDialog(text, QProgressDialog::tr("Cancel"), 0, 0, parent))
    {
        m_dialog->setWindowModality(Qt::WindowModal);
        m_dialog->setMinimumDuration(500); // milliseconds
    }
    ~ProgressBox() { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(ProgressBox)

    /// Lets the window answer. False if the work shall stop.
    bool show(int done, int all)
    {
        if (m_dialog)
            m_dialog->setMaximum(all);
        if (m_dialog)
            m_dialog->setValue(done);
        return m_dialog && !m_dialog->wasCanceled();
    }

private:
    QPointer<QProgressDialog> m_dialog;
};

} // namespace document_editor
