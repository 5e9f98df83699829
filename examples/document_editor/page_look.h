// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

namespace my_classes {
class CustomTextEditor;
}

namespace document_editor {

/// Shows the text of an editor as a page of paper in the middle of the window, as the preferences want it.
class PageLook : public QObject
{
    Q_OBJECT

public:
    explicit PageLook(my_classes::CustomTextEditor *editor);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void center();
    void apply();
    void apply_width();
    void apply_colours();

    my_classes::CustomTextEditor *m_editor;
};

} // namespace document_editor
