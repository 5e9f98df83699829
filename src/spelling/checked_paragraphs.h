// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace my_classes {

/// What was found misspelled in each paragraph of a document, and which paragraphs have to be checked again.
class CheckedParagraphs
{
public:
    /// Forgets everything; `count` paragraphs have to be checked.
    void reset(int count);
    /// All have to be checked again.
    void uncheck_all();
    void uncheck(int paragraph);
    /// The `old_count` paragraphs from `first` on became `new_count`, which have to be checked.
    void replace(int first, int old_count, int new_count);

    int count() const { return static_cast<int>(m_paragraphs.size()); }
    /// The first one that has to be checked; -1 if there is none.
    int next_unchecked();
    /// It is checked now.
    void set_misspelled(int paragraph, const QStringList &words);

    bool contain(const QString &word) const { return m_occurrences.contains(word); }
    QStringList words() const { return m_occurrences.keys(); }
    /// Words that have gone since this was last asked.
    QSet<QString> take_gone();

private:
    struct Paragraph
    {
        QStringList misspelled;
        bool is_checked = false;
    };

    void forget_words(const QStringList &words);

    QList<Paragraph> m_paragraphs;
    QHash<QString, int> m_occurrences; // paragraphs' mentions of each word
    QSet<QString> m_gone;
    int m_all_checked_before = 0;
};

} // namespace my_classes
