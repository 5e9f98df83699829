// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QMenu;
class QTextCursor;
QT_END_NAMESPACE

namespace my_classes {
class CustomTextEditor;
}

namespace document_editor {

/// The context menu of an editor's text: the usual one, under the suggestions for a misspelled word.
class ContextMenu : public QObject
{
    Q_OBJECT

public:
    explicit ContextMenu(my_classes::CustomTextEditor *editor);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add_suggestions(QMenu *menu, const QTextCursor &word);

    my_classes::CustomTextEditor *m_editor;
};

} // namespace document_editor
