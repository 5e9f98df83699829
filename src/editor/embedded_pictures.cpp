// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/embedded_pictures.h"

#include "editor/pictures.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QTextFormat>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

/// The base64 text of a data: URI; empty if `name` is anything else.
QStringView base64_text(const QString &name)
{
    if (!name.startsWith("data:"_L1, Qt::CaseInsensitive))
        return {};
    const qsizetype comma = name.indexOf(u',');
    const QStringView all(name);
    return comma > 0 && all.first(comma).endsWith(";base64"_L1) ? all.sliced(comma + 1) : QStringView();
}

} // namespace

EmbeddedPictures::EmbeddedPictures(QTextDocument *document)
    : QObject(document->documentLayout())
    , m_found(dynamic_cast<QObject *>(document->documentLayout()->handlerForObject(QTextFormat::ImageObject)))
{
    document->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
    connect(document, &QTextDocument::contentsChanged, this, &EmbeddedPictures::forget_unused);
}

QSizeF EmbeddedPictures::intrinsicSize(QTextDocument *document, int position, const QTextFormat &format)
{
    const Handled by = handled(document, format);
    return by.handler->intrinsicSize(by.document, position, by.format);
}

void EmbeddedPictures::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                                  const QTextFormat &format)
{
    const Handled by = handled(document, format);
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform); // counts on screens of 200% and where a side was left out
    by.handler->drawObject(painter, rect, by.document, position, by.format);
    painter->restore();
}

/// Who handles the picture: an embedded one Qt, under the short name of the decoded picture in the store; any other
/// whoever was found here, or Qt.
EmbeddedPictures::Handled EmbeddedPictures::handled(QTextDocument *document, const QTextFormat &format)
{
    QAbstractTextDocumentLayout *layout = m_store.documentLayout();
    QTextObjectInterface *qt_handler = layout->handlerForObject(QTextFormat::ImageObject);
    QTextImageFormat image = format.toImageFormat();
    const QUrl resource = decoded(image.name());
    if (resource.isEmpty()) {
        auto *found = qobject_cast<QTextObjectInterface *>(m_found.data());
        return {found ? found : qt_handler, document, image};
    }
    if (layout->paintDevice() != document->documentLayout()->paintDevice()) // on paper pictures have more dots
        layout->setPaintDevice(document->documentLayout()->paintDevice());
    image.setName(resource.toString());
    return {qt_handler, &m_store, image};
}

/// The resource that holds the decoded picture; empty if it is not embedded.
QUrl EmbeddedPictures::decoded(const QString &name)
{
    const auto known = m_pictures.constFind(name.constData());
    if (known != m_pictures.constEnd())
        return known->resource;
    const QStringView base64 = base64_text(name);
    if (base64.isEmpty())
        return {};
    QUrl resource(u"embedded-picture:%1"_s.arg(++m_decoded));
    const QImage picture = decode_picture(QByteArray::fromBase64(base64.toLatin1()));
    m_store.addResource(QTextDocument::ImageResource, resource, QPixmap::fromImage(picture));
    m_pictures.insert(name.constData(), {name, resource});
    return resource;
}

void EmbeddedPictures::forget_unused()
{
    m_pictures.removeIf([this](decltype(m_pictures)::iterator picture) {
        if (!picture->name.isDetached())
            return false;
        // The document was cleared: nobody else has the text any more.
        m_store.addResource(QTextDocument::ImageResource, picture->resource, QVariant());
        return true;
    });
}

void EmbeddedPictures::give_back()
{
    auto *layout = qobject_cast<QAbstractTextDocumentLayout *>(parent());
    if (!layout || layout->handlerForObject(QTextFormat::ImageObject) != this)
        return; // somebody came after
    layout->unregisterHandler(QTextFormat::ImageObject, this);
    if (m_found)
        layout->registerHandler(QTextFormat::ImageObject, m_found);
}

PictureHandling::PictureHandling(QTextDocument *document)
    : m_pictures(document->documentLayout()->findChild<EmbeddedPictures *>({}, Qt::FindDirectChildrenOnly))
{
    if (!m_pictures)
        m_pictures = new EmbeddedPictures(document);
    ++m_pictures->m_users;
}

PictureHandling::~PictureHandling()
{
    if (!m_pictures || --m_pictures->m_users > 0)
        return;
    m_pictures->give_back();
    delete m_pictures;
}

} // namespace my_classes
