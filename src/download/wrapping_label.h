// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLabel>

namespace my_classes {

/// Tool tips take for rich text what looks like it.
QString plain_tool_tip(const QString &text);

/// Label of plain text for a small fixed space: it also breaks inside words, such as addresses and file names, takes a
/// smaller font where that helps, and ends with an ellipsis where nothing does; without a tool tip of its own it shows
/// the whole text as one then.
class WrappingLabel : public QLabel
{
public:
    explicit WrappingLabel(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList lines(const QFont &font) const;
    bool fits(const QFont &font) const;
    QFont fitting_font() const;
};

} // namespace my_classes
