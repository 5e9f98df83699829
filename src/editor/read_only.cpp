// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/custom_text_editor.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtWidgets/QLabel>

#include <functional>
#include <utility>

namespace my_classes {

namespace {

/// Calls back when the text area becomes read-only or writable, whoever does that, and when the language changes.
class ReadOnlyWatch : public QObject
{
public:
    ReadOnlyWatch(QTextEdit *text_edit, std::function<void()> changed)
        : QObject(text_edit)
        , m_changed(std::move(changed))
    {
        text_edit->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::ReadOnlyChange && event->type() != QEvent::LanguageChange)
            return false;
        const QPointer<ReadOnlyWatch> here(this);
        m_changed();
        return !here; // nothing goes on in a deleted text area
    }

private:
    std::function<void()> m_changed;
};

} // namespace

void CustomTextEditor::set_read_only(bool read_only)
{
    text_edit->setReadOnly(read_only);
}

bool CustomTextEditor::is_read_only() const
{
    return text_edit->isReadOnly();
}

/// A label that says so while the text is read-only.
QLabel *CustomTextEditor::create_read_only_label()
{
    auto *label = new QLabel(tr("Read-only"));
    label->setObjectName(QStringLiteral("read_only_label"));
    label->setVisible(false);
    new ReadOnlyWatch(text_edit, [this, label] {
        label->setText(tr("Read-only"));
        const bool read_only = is_read_only();
        if (read_only != label->isHidden())
            return;
        const QPointer<CustomTextEditor> here(this);
        label->setVisible(read_only);
        enable_writing(!read_only);
        if (here)
            Q_EMIT read_only_changed(read_only);
    });
    return label;
}

/// Actions that depend on more, such as a selection, look at is_read_only() themselves.
void CustomTextEditor::enable_writing(bool enabled)
{
    const QPointer<CustomTextEditor> here(this); // a listener may delete it
    for (const EditorCommand command :
         {EditorCommand::Bold, EditorCommand::Italic, EditorCommand::Underline, EditorCommand::Cut,
          EditorCommand::Paste, EditorCommand::PasteUnformatted, EditorCommand::Undo, EditorCommand::Redo,
          EditorCommand::JustifyLeft, EditorCommand::JustifyCenter, EditorCommand::JustifyRight,
          EditorCommand::JustifyFull, EditorCommand::NumberedList, EditorCommand::BulletListDisc,
          EditorCommand::BulletListSquare, EditorCommand::InsertImage, EditorCommand::InsertTable}) {
        if (here)
            action(command)->setEnabled(enabled);
    }
    if (here)
        selection_changed();
    if (here)
        update_suggestions();
}

} // namespace my_classes
