// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "layout/object_handlers.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextFormat>
#include <QtGui/QTextLayout>

namespace my_classes {

namespace {

constexpr int k_likely_user_types = 64;

/// Each layout brings its own.
bool is_qt_picture_handler(const QObject *handler)
{
    return qstrcmp(handler->metaObject()->className(), "QTextImageHandler") == 0;
}

QObject *handler_of(const QAbstractTextDocumentLayout *layout, int type)
{
    return dynamic_cast<QObject *>(layout->handlerForObject(type));
}

} // namespace

QSet<int> object_types(const QTextDocument *document)
{
    QSet<int> types{QTextFormat::ImageObject};
    const QList<QTextFormat> formats = document->allFormats();
    for (const QTextFormat &format : formats)
        types.insert(format.objectType());
    for (int i = 0; i < k_likely_user_types; ++i)
        types.insert(QTextFormat::UserObject + i);
    return types;
}

void align_in_the_middle(QTextInlineObject item, const QTextFormat &format, const QAbstractTextDocumentLayout *layout)
{
    const QTextCharFormat characters = format.toCharFormat();
    if (characters.verticalAlignment() != QTextCharFormat::AlignMiddle)
        return;
    const QFont font = characters.font().resolve(layout->document()->defaultFont());
    QPaintDevice *device = layout->paintDevice();
    const QFontMetrics metrics = device ? QFontMetrics(font, device) : QFontMetrics(font);
    const qreal height = item.height();
    item.setAscent(height / 2 + metrics.xHeight() / 4.0);
    item.setDescent(height - item.ascent());
}

QtPictures::QtPictures(QAbstractTextDocumentLayout *layout)
{
    layout->registerHandler(QTextFormat::ImageObject, handler_of(m_owner.documentLayout(), QTextFormat::ImageObject));
}

ObjectHandlers::ObjectHandlers(QTextDocument *document)
{
    const QAbstractTextDocumentLayout *layout = document->documentLayout();
    const QSet<int> types = object_types(document);
    for (const int type : types) {
        QObject *handler = handler_of(layout, type);
        if (!handler || is_qt_picture_handler(handler))
            continue;
        m_registered.append({type, handler});
        if (handler->parent() == layout)
            handler->setParent(&m_owner);
    }
}

void ObjectHandlers::give_to(QAbstractTextDocumentLayout *layout)
{
    for (const Registered &registered : std::as_const(m_registered)) {
        if (!registered.handler)
            continue;
        layout->registerHandler(registered.type, registered.handler);
        if (registered.handler->parent() == &m_owner)
            registered.handler->setParent(layout);
    }
}

} // namespace my_classes
