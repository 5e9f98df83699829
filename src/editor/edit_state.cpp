// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/edit_state.h"

#include <algorithm>

namespace my_classes {

EditState::EditState(QTextDocument *document)
    : m_document(document)
{
    follow();
    connect(document, &QTextDocument::undoCommandAdded, this, &EditState::note_new_steps);
    connect(document, &QTextDocument::contentsChanged, this, &EditState::follow);
    connect(document, &QTextDocument::modificationChanged, this, &EditState::follow);
}

bool EditState::is_modified() const
{
    return m_document && m_document->isModified() && !only_marks_since_saved();
}

void EditState::set_modified(bool modified)
{
    if (!m_document)
        return;
    if (modified)
        m_saved = -1;
    const QPointer<EditState> here(this); // who hears of it may delete the editor
    m_document->setModified(modified);
    if (here)
        follow();
}

void EditState::note_new_steps()
{
    const int step = m_document->availableUndoSteps();
    const int first = std::min(m_step, step - 1);
    forget_steps_from(first); // they were undone, and cannot be redone any more
    if (Marking::is_under_way())
        m_marks.append({first, step});
    m_step = step;
}

void EditState::forget_steps_from(int step)
{
    m_marks.removeIf([step](const Steps &marks) { return marks.first >= step; });
    if (!m_marks.isEmpty())
        m_marks.last().end = std::min(m_marks.last().end, step);
    if (m_saved > step)
        m_saved = -1;
}

void EditState::follow()
{
    m_step = m_document->availableUndoSteps();
    if (!m_document->isRedoAvailable())
        forget_steps_from(m_step); // perhaps it was cleared
    if (!m_document->isModified())
        m_saved = m_step;
    if (m_modified == is_modified())
        return;
    m_modified = !m_modified;
    Q_EMIT modified_changed(m_modified);
}

bool EditState::only_marks_since_saved() const
{
    if (m_saved < 0)
        return false;
    const int first = std::min(m_saved, m_step);
    const int end = std::max(m_saved, m_step);
    int marked = 0;
    for (const Steps &marks : m_marks)
        marked += std::max(0, std::min(marks.end, end) - std::max(marks.first, first));
    return first < end && marked == end - first; // an edit without any step is no mark
}

} // namespace my_classes
