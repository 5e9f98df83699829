// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/text_area.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QFontInfo>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <cmath>

namespace my_classes {

namespace {

constexpr int k_step_percent = 10;
constexpr double k_smallest = 0.5; // points: Qt rounds them where it sizes headings, and knows no size of 0

double points_of(const QFont &font)
{
    return font.pixelSize() > 0 ? QFontInfo(font).pointSizeF() : font.pointSizeF();
}

/// `size` zoomed by `steps` of a point; as small as such steps lead to where they lead to nothing.
double visible_size(double size, qint64 steps)
{
    return std::max(size + static_cast<double>(steps), size - std::ceil(size - k_smallest) + 1);
}

QFont with_size(QFont font, double points)
{
    if (points > 0) // not for fonts in pixels
        font.setPointSizeF(std::max(points, k_smallest));
    return font;
}

int whole(double points)
{
    return qRound(std::min(points, 1e9));
}

} // namespace

void CustomTextEditor::zoom_in()
{
    if (zoom_percent >= zoom_max_percent)
        return;
    zoom_by(1);
    show_zoom_percent(zoom_percent + k_step_percent);
}

void CustomTextEditor::zoom_out()
{
    if (zoom_percent <= zoom_min_percent)
        return;
    zoom_by(-1);
    show_zoom_percent(zoom_percent - k_step_percent);
}

void CustomTextEditor::set_zoom_percent(int percent)
{
    // Applied on top of the present zoom: hosts rely on it.
    zoom_by(static_cast<int>((static_cast<qint64>(percent) - 100) / k_step_percent));
    show_zoom_percent(percent);
}

void CustomTextEditor::show_zoom_percent(int percent)
{
    const bool changed = zoom_percent != percent;
    zoom_percent = percent;
    update_zoom_label();
    if (changed)
        Q_EMIT zoom_changed(percent);
}

void CustomTextEditor::update_zoom_label()
{
    zoom_label->setText(QString::number(zoom_percent) + u'%');
}

void CustomTextEditor::wheel_event(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        static_cast<TextArea *>(text_edit)->scroll_by_wheel(event);
        return;
    }
    if (event->angleDelta().y() > 0)
        zoom_in();
    else
        zoom_out();
    event->accept();
}

void CustomTextEditor::zoom_by(int points)
{
    QTextDocument *document = text_edit->document();
    const QFont documents_own = unzoomed_font(document);
    const bool has_own = document->defaultFont() != text_edit->font(); // one that a host brought along
    QFont font = text_edit->font();
    if (!is_zoomed()) { // the first step, or the host has set a font since
        m_unzoomed_font = font;
        m_zoom_steps = 0;
    }
    if (points != 0 && font.pixelSize() > 0) { // Qt zooms points only
        font.setPointSizeF(QFontInfo(font).pointSizeF());
        text_edit->setFont(font);
    }
    m_zoom_steps += points;
    const double change = visible_size(points_of(m_unzoomed_font), m_zoom_steps) - font.pointSizeF();
    if (change > 0)
        text_edit->zoomIn(whole(change));
    else if (change < 0)
        text_edit->zoomOut(whole(-change));
    m_zoomed_size = text_edit->font().pointSizeF();
    if (has_own)
        zoom_document(document, documents_own);
}

void CustomTextEditor::zoom_document(QTextDocument *document, const QFont &own)
{
    m_documents_size = own.pointSizeF();
    document->setDefaultFont(with_size(own, m_documents_size * zoom_scale()));
}

bool CustomTextEditor::is_zoomed() const
{
    return qFuzzyCompare(text_edit->font().pointSizeF(), m_zoomed_size);
}

double CustomTextEditor::zoom_scale() const
{
    return is_zoomed() ? m_zoomed_size / points_of(m_unzoomed_font) : 1;
}

/// The one before is left as it would be had it never been shown.
void CustomTextEditor::move_zoom(QTextDocument *from, QTextDocument *to)
{
    if (from)
        from->setDefaultFont(unzoomed_font(from));
    if (!qFuzzyCompare(zoom_scale(), 1))
        zoom_document(to, to->defaultFont());
}

QFont CustomTextEditor::unzoomed_font() const
{
    return unzoomed_font(text_edit->document());
}

QFont CustomTextEditor::unzoomed_font(const QTextDocument *document) const
{
    QFont font = document->defaultFont();
    if (font.pointSizeF() == k_smallest)
        return with_size(font, m_documents_size);
    if (!qFuzzyCompare(font.pointSizeF(), m_zoomed_size))
        return with_size(font, std::round(font.pointSizeF() / zoom_scale() * 1e4) / 1e4); // as it was, without noise
    if (m_unzoomed_font.pixelSize() > 0)
        font.setPixelSize(m_unzoomed_font.pixelSize());
    else
        font.setPointSizeF(m_unzoomed_font.pointSizeF());
    return font;
}

} // namespace my_classes
