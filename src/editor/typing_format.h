// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QSet>
#include <QtGui/QTextCursor>

QT_BEGIN_NAMESPACE
class QTextCharFormat;
QT_END_NAMESPACE

namespace my_classes {

/// What was switched on for typing where no word was at the caret. It ends where it is switched off, as long as the
/// person has only typed on from there.
class TypingFormat
{
public:
    /// `format` is set at `caret`, where no word is.
    void set(const QTextCursor &caret, const QTextCharFormat &format);
    /// Whether `format` concerns nothing but what was switched on before `word`, whose end is being typed at `caret`.
    /// It is over then.
    bool is_ended(const QTextCursor &caret, const QTextCursor &word, const QTextCharFormat &format);

    void note_change(int removed, int added);
    void note_caret(const QTextCursor &caret);

private:
    QSet<int> m_switched_on; // properties
    QTextCursor m_start;
    int m_caret = -1; // where typing has come
    bool m_has_typed = false;
};

} // namespace my_classes
