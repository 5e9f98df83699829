// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/typing_format.h"

#include <QtGui/QTextCharFormat>

namespace my_classes {

namespace {

/// Families and sizes are never off.
bool is_off(int property, const QVariant &value)
{
    if (property == QTextFormat::FontWeight)
        return value.toInt() <= QFont::Normal;
    return value.typeId() == QMetaType::Bool && !value.toBool();
}

QSet<int> properties_of(const QTextCharFormat &format, bool only_on)
{
    QSet<int> properties;
    const QMap<int, QVariant> all = format.properties();
    for (auto property = all.cbegin(); property != all.cend(); ++property) {
        if (!only_on || !is_off(property.key(), property.value()))
            properties.insert(property.key());
    }
    return properties;
}

} // namespace

void TypingFormat::set(const QTextCursor &caret, const QTextCharFormat &format)
{
    if (caret.position() != m_caret || m_switched_on.isEmpty()) {
        m_switched_on.clear();
        m_start = QTextCursor(caret.document());
        m_start.setPosition(caret.position());
        m_start.setKeepPositionOnInsert(true);
        m_caret = caret.position();
    }
    m_switched_on.subtract(properties_of(format, false));
    m_switched_on.unite(properties_of(format, true));
    m_has_typed = false;
}

bool TypingFormat::is_ended(const QTextCursor &caret, const QTextCursor &word, const QTextCharFormat &format)
{
    const QSet<int> properties = properties_of(format, false);
    if (caret.position() != m_caret || word.selectionStart() < m_start.position() ||
        !m_switched_on.contains(properties))
        return false;
    m_switched_on.subtract(properties);
    return true;
}

void TypingFormat::note_change(int removed, int added)
{
    m_has_typed = m_has_typed || removed != added; // equal numbers: formatted
}

void TypingFormat::note_caret(const QTextCursor &caret)
{
    if (m_has_typed || caret.position() != m_caret) // input methods tell of the caret twice
        m_caret = m_has_typed ? caret.position() : -1;
    m_has_typed = false;
}

} // namespace my_classes
