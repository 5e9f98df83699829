// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace my_classes {

/// A QSignalBlocker for an object that may die meanwhile: a listener to others' signals may delete it.
class Quiet
{
public:
    explicit Quiet(QObject *object)
        : m_object(object)
        , m_was_blocked(object->blockSignals(true))
    {
    }
    ~Quiet()
    {
        if (m_object)
            m_object->blockSignals(m_was_blocked);
    }
    Q_DISABLE_COPY_MOVE(Quiet)

private:
    QPointer<QObject> m_object;
    bool m_was_blocked;
};

} // namespace my_classes
