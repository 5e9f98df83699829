// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

namespace document_editor {

/// Offers what a crash has left behind, each document for itself, and opens a window for each that is wanted. True if
/// there is one.
bool offer_recovery();

} // namespace document_editor
