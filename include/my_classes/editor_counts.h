// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

namespace my_classes {

/// What the statistics line of an editor counts.
struct EditorCounts
{
    int sentences = 0;         ///< as CustomTextEditor::count_sentences() counts
    int words = 0;             ///< runs of other than white space
    int characters = 0;        ///< code points
    bool of_selection = false; ///< of the selected text, not of the whole

    friend bool operator==(const EditorCounts &a, const EditorCounts &b)
    {
        return a.sentences == b.sentences && a.words == b.words && a.characters == b.characters &&
               a.of_selection == b.of_selection;
    }
    friend bool operator!=(const EditorCounts &a, const EditorCounts &b) { return !(a == b); }
};

} // namespace my_classes
