// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

namespace bench {

/// Ends the application once a widget has been painted and shown.
class EndAtFirstPaint : public QObject
{
public:
    EndAtFirstPaint() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_ending) {
            m_ending = true;
            QTimer::singleShot(0, qApp, &QCoreApplication::quit); // after the window has been flushed
        }
        return false;
    }

private:
    bool m_ending = false;
};

} // namespace bench
