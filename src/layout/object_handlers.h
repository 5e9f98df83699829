// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

QT_BEGIN_NAMESPACE
class QAbstractTextDocumentLayout;
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

/// Carries the handlers of objects from one layout of a document to the next, but for one of pictures that belongs to
/// the layout.
class ObjectHandlers
{
public:
    /// Takes those into its care that belong to the present layout.
    explicit ObjectHandlers(QTextDocument *document);
    void give_to(QAbstractTextDocumentLayout *layout);

private:
    struct Registered
    {
        int type;
        QPointer<QObject> handler;
    };

    QObject m_owner;
    QList<Registered> m_registered;
};

} // namespace my_classes
