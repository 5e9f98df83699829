// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtWidgets/QTextEdit>

namespace my_classes {

/// Shows light letters on the yellow of a search dark, in one text area, as extra selections of what is in sight: the
/// document keeps the format that it has. Owned by the text area, because the marks outlive the dialog.
class ReadableMarks : public QObject
{
    Q_OBJECT

public:
    /// Once per text area.
    static void install(QTextEdit *text_area);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ReadableMarks(QTextEdit *text_area);
    void leave_unmarked();
    void update();
    QList<QTextEdit::ExtraSelection> unreadable_in_sight() const;

    QTextEdit *const m_text_area;
};

} // namespace my_classes
