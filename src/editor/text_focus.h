// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace my_classes {

/// Whether an editor that is being shown may give its text the focus: nobody has it, or only what the editor is shown
/// in place of. A person who moves along a tab bar by keys stays there.
bool may_take_focus(const QWidget *editor);

/// From now on may_take_focus() notices when a person moves by keys along the tab bar that `page` belongs to, if any.
void watch_tab_bar(const QWidget *page);

} // namespace my_classes
