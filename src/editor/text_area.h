// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTextEdit>

namespace my_classes {

class CustomTextEditor;

/// The editor's text area: gives every wheel event to the editor first, leaves by Shift+Tab, and opens no devices or
/// pipes that a document names as pictures or style sheets.
class TextArea : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextArea(CustomTextEditor *editor);

    /// The wheel handling of QTextEdit itself.
    void scroll_by_wheel(QWheelEvent *event);

    /// Leaves to Qt what the document embeds and ordinary files; stands in for anything else that it names.
    QVariant loadResource(int type, const QUrl &name) override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    CustomTextEditor *m_editor;
};

} // namespace my_classes
