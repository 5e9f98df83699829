// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "download/wrapping_label.h"

#include <QtGui/QFontInfo>
#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace my_classes {

namespace {

constexpr int k_smallest_font_percent = 75;

} // namespace

QString plain_tool_tip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

WrappingLabel::WrappingLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

bool WrappingLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    if (!fits(fitting_font()))
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plain_tool_tip(text()), this);
    return true;
}

void WrappingLabel::paintEvent(QPaintEvent *)
{
    const QFont fitting = fitting_font();
    const QFontMetrics metrics(fitting);
    QStringList shown = lines(fitting);
    if (!fits(fitting)) {
        shown.resize(std::max(1, contentsRect().height() / metrics.lineSpacing()));
        shown.last() = metrics.elidedText(shown.last() + QChar(0x2026), Qt::ElideRight, contentsRect().width());
    }
    QPainter painter(this);
    painter.setFont(fitting);
    painter.drawText(contentsRect(), int(Qt::AlignCenter), shown.join(QLatin1Char('\n')));
}

/// The text broken to the width of the label.
QStringList WrappingLabel::lines(const QFont &font) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList broken;
    for (const QString &paragraph : text().split(QLatin1Char('\n'))) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(contentsRect().width());
            broken << paragraph.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    return broken;
}

bool WrappingLabel::fits(const QFont &font) const
{
    return lines(font).size() * QFontMetrics(font).lineSpacing() <= contentsRect().height();
}

/// The label's font, or the largest smaller one in which the text fits, or the smallest.
QFont WrappingLabel::fitting_font() const
{
    QFont fitting = font();
    const int full_size = QFontInfo(fitting).pixelSize();
    for (int size = full_size - 1; !fits(fitting) && size >= full_size * k_smallest_font_percent / 100; --size)
        fitting.setPixelSize(size);
    return fitting;
}

} // namespace my_classes
