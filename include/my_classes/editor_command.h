// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

namespace my_classes {

/// The commands of CustomTextEditor's tool bar, in its order, and those on the table at the caret.
enum class EditorCommand {
    Print,
    Bold,
    Italic,
    Underline,
    Cut,
    Copy,
    Paste,
    PasteUnformatted,
    Undo,
    Redo,
    SelectAll,
    Search,
    JustifyLeft,
    JustifyCenter,
    JustifyRight,
    JustifyFull,
    NumberedList,
    BulletListDisc,
    BulletListSquare,
    ClearFormatting,
    CheckSpelling,
    Correct,
    AppendToDictionary,
    InsertImage,
    InsertTable,
    // Not in the tool bar.
    InsertRowAbove,
    InsertRowBelow,
    InsertColumnBefore,
    InsertColumnAfter,
    RemoveRows,
    RemoveColumns,
};

} // namespace my_classes
