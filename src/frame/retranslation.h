// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QEvent>
#include <QtCore/QObject>

#include <functional>
#include <utility>

namespace my_classes {

/// Sets the texts of the object that owns it, now and whenever the language changes.
class Retranslation : public QObject
{
public:
    Retranslation(QObject *owner, std::function<void()> set_texts)
        : QObject(owner)
        , m_set_texts(std::move(set_texts))
    {
        owner->installEventFilter(this);
        m_set_texts();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && event->type() == QEvent::LanguageChange)
            m_set_texts();
        return false;
    }

private:
    std::function<void()> m_set_texts;
};

} // namespace my_classes
