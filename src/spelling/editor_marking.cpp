// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/word_under_cursor.h"
#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QSignalBlocker>

namespace my_classes {

void CustomTextEditor::set_marking_while_writing(bool on)
{
    if (on == is_marking_while_writing())
        return;
    if (on) {
        m_marker = new WordMarker(this);
        connect(m_marker, &WordMarker::list_changed, this, [this](const QSet<QString> &words) {
            const QString word = word_under_cursor(text_edit->textCursor()).selectedText().toLower();
            if (words.contains(word) || (correctAction->isEnabled() && !highlighter->misspelled.contains(word)))
                update_suggestions();
        });
        return;
    }
    delete m_marker;
    {
        const QSignalBlocker quiet(text_edit); // underlining is not an edit
        highlighter->setMisspelled({});
    }
    update_suggestions();
}

bool CustomTextEditor::is_marking_while_writing() const
{
    return m_marker != nullptr;
}

} // namespace my_classes
