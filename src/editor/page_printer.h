// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

/// Prints documents that are laid out in pages of `device`, each from a new page on, with page numbers that run
/// through. The device's page ranges, and a printer's copies and order, are those asked for in its dialog.
void print_pages(QPagedPaintDevice *device, const std::vector<std::unique_ptr<QTextDocument>> &documents);

} // namespace my_classes
