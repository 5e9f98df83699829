// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QMenu>

namespace document_editor {

/// The menu of the files that were open last, newest first; the same in every window and the next session.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget *parent);
    static void add(const QString &path);

Q_SIGNALS:
    void chosen(const QString &path);

private:
    void fill();
};

} // namespace document_editor
