// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/copied_lines.h"

#include <QtGui/QTextLayout>

namespace my_classes {

namespace {

bool has_lines_of(const QTextLayout *layout, const QTextLayout *other)
{
    bool is_alike = layout->lineCount() == other->lineCount();
    for (int i = 0; is_alike && i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const QTextLine like = other->lineAt(i);
        is_alike =
            line.textStart() == like.textStart() && line.position() == like.position() && line.width() == like.width();
    }
    return is_alike;
}

/// Has a new line end where another does, on which Qt has decided with more than one way to wrap.
void end_like(QTextLine line, const QTextLine &like, QTextLayout *layout, QTextOption option)
{
    line.setLineWidth(like.width());
    for (const auto mode : {QTextOption::WordWrap, QTextOption::WrapAnywhere}) {
        if (line.textLength() == like.textLength() && line.naturalTextWidth() == like.naturalTextWidth())
            return;
        option.setWrapMode(mode);
        layout->setTextOption(option);
        line.setLineWidth(like.width());
    }
    for (int columns = like.textLength(); columns > 0 && line.textLength() != like.textLength(); --columns)
        line.setNumColumns(columns, like.width());
}

} // namespace

void copy_lines(const QTextLayout *from, QTextLayout *to, QTextOption::WrapMode wrap_mode)
{
    to->setPosition(from->position());
    if (has_lines_of(to, from))
        return;
    QTextOption option = from->textOption();
    if (option.wrapMode() == QTextOption::WordWrap)
        option.setWrapMode(wrap_mode);
    to->beginLayout();
    for (int i = 0; i < from->lineCount(); ++i) {
        to->setTextOption(option);
        QTextLine line = to->createLine();
        if (!line.isValid())
            break;
        line.setLeadingIncluded(true);
        end_like(line, from->lineAt(i), to, option);
        line.setPosition(from->lineAt(i).position());
    }
    to->endLayout();
    to->setTextOption(from->textOption());
}

} // namespace my_classes
