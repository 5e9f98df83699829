// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextDocument>

#include <memory>

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
QT_END_NAMESPACE

namespace my_classes {

/// The margin around the text of a printed page, in dots of `device`.
double page_margin(const QPagedPaintDevice &device);

/// A copy of `source` that is laid out in pages of `device`: no picture larger than its page, and everything measured
/// in pixels as large as on the screen. Both have to live as long.
std::unique_ptr<QTextDocument> print_copy(QTextDocument *source, const QFont &default_font, QPagedPaintDevice *device);

} // namespace my_classes
