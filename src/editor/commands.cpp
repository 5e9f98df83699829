// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/log.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

namespace my_classes {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(log_editor, "my_classes.editor")

/// In the order of EditorCommand. `text` is translated by retranslate().
QAction *CustomTextEditor::make_action(EditorCommand command, const char *name, const char *text)
{
    Q_ASSERT(m_commands.size() == static_cast<std::size_t>(command));
    auto *action = new QAction(this);
    action->setObjectName(QLatin1StringView(name) + u"_action"_s);
    m_commands.push_back({action, text, {}});
    return action;
}

QAction *CustomTextEditor::action(EditorCommand command) const
{
    return m_commands.at(static_cast<std::size_t>(command)).action;
}

void CustomTextEditor::set_shortcuts_enabled(bool enabled)
{
    if (enabled == m_shortcuts_enabled)
        return;
    m_shortcuts_enabled = enabled;
    for (CommandAction &command : m_commands) {
        if (enabled && command.action->shortcuts().isEmpty()) // else the host has given it one meanwhile
            command.action->setShortcuts(command.shortcuts);
        if (!enabled) {
            command.shortcuts = command.action->shortcuts();
            command.action->setShortcuts(QList<QKeySequence>());
        }
    }
}

bool CustomTextEditor::shortcuts_enabled() const
{
    return m_shortcuts_enabled;
}

void CustomTextEditor::retranslate()
{
    for (const CommandAction &command : m_commands)
        command.action->setText(tr(command.text));
    toolbar->setWindowTitle(tr("Main Toolbar"));
    text_edit->setAccessibleName(tr("Document"));
    font_combo->setAccessibleName(tr("Font family"));
    font_size_combo->setAccessibleName(tr("Font size"));
    suggestionsComboBox->setPlaceholderText(tr("Spellcheck Suggestions"));
    suggestionsComboBox->setAccessibleName(tr("Spelling suggestions"));
    findChild<QPushButton *>(u"zoom_in_button"_s)->setAccessibleName(tr("Zoom in"));
    findChild<QPushButton *>(u"zoom_out_button"_s)->setAccessibleName(tr("Zoom out"));
}

} // namespace my_classes
