// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "page_look.h"

#include "preferences.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QTextEdit>

namespace document_editor {

using namespace Qt::StringLiterals;
using my_classes::CustomTextEditor;

namespace {

constexpr int k_letters = 75; // on a line, as books have it
constexpr int k_most = 1000;  // of the width, as long as it is not wide enough
constexpr int k_beside = 8;   // pixels between the page and the edge of a small window
constexpr int k_padding = 10; // pixels
constexpr int k_around = 120; // pixels that are not text

/// And of what is written on it.
std::pair<QColor, QColor> colours_of(Paper paper)
{
    if (paper == Paper::System)
        return {QApplication::palette().color(QPalette::Base), QApplication::palette().color(QPalette::Text)};
    return paper == Paper::Light ? std::pair<QColor, QColor>(Qt::white, Qt::black)
                                 : std::pair(QColor(0x20, 0x20, 0x20), QColor(0xe4, 0xe4, 0xe4));
}

} // namespace

PageLook::PageLook(CustomTextEditor *editor)
    : QObject(editor)
    , m_editor(editor)
{
    center();
    editor->installEventFilter(this);
    connect(editor, &CustomTextEditor::zoom_changed, this, &PageLook::apply_width);
    connect(&Preferences::instance(), &Preferences::changed, this, &PageLook::apply);
    apply();
}

/// Puts the text between two stretches, which get what it does not take.
void PageLook::center()
{
    auto *column = static_cast<QBoxLayout *>(m_editor->layout());
    const int place = column->indexOf(m_editor->text_edit);
    column->removeWidget(m_editor->text_edit);
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_editor->text_edit, k_most);
    row->addStretch(1);
    column->insertLayout(place, row, 1);
}

void PageLook::apply()
{
    apply_width();
    apply_colours();
}

void PageLook::apply_width()
{
    m_editor->layout()->setContentsMargins(k_beside, 0, k_beside, 0);
    const QFontMetricsF letters(m_editor->text_edit->document()->defaultFont());
    const int around = m_editor->text_edit->width() - m_editor->text_edit->viewport()->width();
    const int width = qRound(letters.averageCharWidth() * k_letters) + qMax(k_around, around);
    m_editor->text_edit->setMaximumWidth(Preferences::instance().shows_page() ? width : QWIDGETSIZE_MAX);
}

void PageLook::apply_colours()
{
    const auto [paper, ink] = colours_of(Preferences::instance().paper());
    // By a style sheet, because the paper goes to the edge, under the margins.
    const QString style =
        u"QTextEdit { background-color: %1; color: %2; border: 1px solid palette(mid); padding: %3px; }"_s;
    m_editor->text_edit->setStyleSheet(style.arg(paper.name(), ink.name(), QString::number(k_padding)));
}

bool PageLook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        QMetaObject::invokeMethod(this, &PageLook::apply_colours, Qt::QueuedConnection); // the style sheet asks again
    if (event->type() == QEvent::Wheel) {                                                // beside the page
        m_editor->wheel_event(static_cast<QWheelEvent *>(event));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace document_editor
