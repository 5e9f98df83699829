// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "page_look.h"

#include "preferences.h"

#include <my_classes/custom_text_editor.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

namespace document_editor {

using my_classes::CustomTextEditor;

namespace {

constexpr int k_letters = 75; // on a line, as books have it

struct PaperColours
{
    QColor paper;
    QColor ink;
};

PaperColours colours_of(Paper paper)
{
    switch (paper) {
    case Paper::Light:
        return {Qt::white, Qt::black};
    case Paper::Dark:
        return {QColor(0x20, 0x20, 0x20), QColor(0xe4, 0xe4, 0xe4)};
    case Paper::System:
        break;
    }
    return {QApplication::palette().color(QPalette::Base), QApplication::palette().color(QPalette::Text)};
}

} // namespace

PageLook::PageLook(CustomTextEditor *editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->installEventFilter(this);
    connect(editor, &CustomTextEditor::zoom_changed, this, &PageLook::apply_width);
    connect(&Preferences::instance(), &Preferences::changed, this, &PageLook::apply);
    apply();
}

void PageLook::apply()
{
    apply_width();
    apply_colours();
}

void PageLook::apply_width()
{
    const QFontMetricsF letters(m_editor->text_edit->document()->defaultFont());
    const int around = m_editor->text_edit->width() - m_editor->text_edit->viewport()->width();
    const int width = qRound(letters.averageCharWidth() * k_letters) + qMax(0, around);
    m_editor->text_edit->setMaximumWidth(Preferences::instance().shows_page() ? width : QWIDGETSIZE_MAX);
}

void PageLook::apply_colours()
{
    const PaperColours colours = colours_of(Preferences::instance().paper());
    QPalette palette = m_editor->text_edit->palette();
    palette.setColor(QPalette::Base, colours.paper);
    palette.setColor(QPalette::Text, colours.ink);
    m_editor->text_edit->setPalette(palette);
    m_editor->text_edit->viewport()->setPalette(palette);
}

bool PageLook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) // the editor has given its text area other colours
        QMetaObject::invokeMethod(this, &PageLook::apply_colours, Qt::QueuedConnection);
    if (event->type() == QEvent::Wheel) { // beside the page
        m_editor->wheel_event(static_cast<QWheelEvent *>(event));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace document_editor
