// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/forwarded_objects.h"

#include "layout/object_handlers.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextFormat>

namespace my_classes {

ForwardedObjects::ForwardedObjects(QTextDocument *source, QAbstractTextDocumentLayout *layout)
    : QObject(layout)
    , m_source(source)
{
    register_at(layout);
}

void ForwardedObjects::register_at(QAbstractTextDocumentLayout *layout)
{
    const QSet<int> types = object_types(m_source);
    for (const int type : types) {
        if (m_source->documentLayout()->handlerForObject(type))
            layout->registerHandler(type, this);
    }
}

QTextObjectInterface *ForwardedObjects::handler(const QTextFormat &format) const
{
    return m_source ? m_source->documentLayout()->handlerForObject(format.objectType()) : nullptr;
}

QSizeF ForwardedObjects::intrinsicSize(QTextDocument *, int position, const QTextFormat &format)
{
    QTextObjectInterface *found = handler(format);
    return found ? found->intrinsicSize(m_source, position, format) : QSizeF(0, 0);
}

void ForwardedObjects::drawObject(QPainter *painter, const QRectF &place, QTextDocument *, int position,
                                  const QTextFormat &format)
{
    if (QTextObjectInterface *found = handler(format))
        found->drawObject(painter, place, m_source, position, format);
}

} // namespace my_classes
