// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/custom_text_editor.h>

#include <QtGui/QAction>

namespace document_editor {

/// A menu's action for one command of whichever editor is the current one: triggers that editor's own action, and is
/// enabled and checked as it is.
class CommandAction : public QAction
{
    Q_OBJECT

public:
    CommandAction(my_classes::EditorCommand command, const QString &text, QObject *parent);
    void follow(my_classes::CustomTextEditor *editor);

private:
    void mirror();

    my_classes::EditorCommand m_command;
    QPointer<QAction> m_followed;
};

} // namespace document_editor
