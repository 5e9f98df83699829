// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QStringView>

namespace my_spellchecker {

/// Finds the words of a text that a person expects to be checked, one after the other.
///
/// A word is a run of letters and marks, with apostrophes between two of its letters. Left out are single letters,
/// words with digits, and everything inside e-mail and web addresses and file paths.
class WordTokenizer
{
public:
    explicit WordTokenizer(QStringView text)
        : m_text(text)
    {
    }

    /// The next word, a part of the text; empty at the end.
    QStringView next();

private:
    bool next_chunk();

    QStringView m_text;
    qsizetype m_position = 0;
    qsizetype m_chunk_end = 0; // of the run without white space that the position is in
};

} // namespace my_spellchecker
