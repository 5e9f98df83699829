// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtGui/QTextDocument>

QT_BEGIN_NAMESPACE
class QAbstractTextDocumentLayout;
class QTextFormat;
class QTextInlineObject;
QT_END_NAMESPACE

namespace my_classes {

/// Those in the document, and those that hosts count up from the first one that is theirs, before they use them.
QSet<int> object_types(const QTextDocument *document);

/// As Qt's own layout does: the middle is that of small letters.
void align_in_the_middle(QTextInlineObject item, const QTextFormat &format, const QAbstractTextDocumentLayout *layout);

/// Gives a layout Qt's own handler of pictures, for as long as this lives.
class QtPictures
{
public:
    explicit QtPictures(QAbstractTextDocumentLayout *layout);

private:
    QTextDocument m_owner;
};

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
