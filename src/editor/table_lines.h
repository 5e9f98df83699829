// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QTextEdit;
QT_END_NAMESPACE

namespace my_classes {

/// On a dark background, draws the lines of the table rows in sight in the colour of the text where they are dark
/// themselves, as those of the tables that the editor inserts. For the end of a paint event of the viewport.
void draw_readable_table_lines(const QTextEdit *area);

} // namespace my_classes
