// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace document_editor {

// The files that were open last, newest first; the same in every window and the next session.

void add_recent_file(const QString &path);
void fill_recent_files(QMenu *menu, const std::function<void(const QString &)> &open);

} // namespace document_editor
