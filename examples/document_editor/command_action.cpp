// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "command_action.h"

namespace document_editor {

CommandAction::CommandAction(my_classes::EditorCommand command, const QString &text, QObject *parent)
    : QAction(text, parent)
    , m_command(command)
{
    setEnabled(false);
    connect(this, &QAction::triggered, this, [this] {
        if (m_followed)
            m_followed->trigger();
        mirror(); // a checkable one has switched itself
    });
}

void CommandAction::follow(my_classes::CustomTextEditor *editor)
{
    if (m_followed)
        disconnect(m_followed, nullptr, this, nullptr);
    m_followed = editor->action(m_command);
    connect(m_followed, &QAction::changed, this, &CommandAction::mirror);
    connect(m_followed, &QAction::toggled, this, &CommandAction::mirror);
    mirror();
}

void CommandAction::mirror()
{
    if (!m_followed)
        return;
    setIcon(m_followed->icon());
    setEnabled(m_followed->isEnabled());
    setCheckable(m_followed->isCheckable());
    setChecked(m_followed->isChecked());
}

} // namespace document_editor
