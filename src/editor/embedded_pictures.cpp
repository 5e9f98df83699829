// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/embedded_pictures.h"

#include "editor/pictures.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
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
    , m_qt_handler(document->documentLayout()->handlerForObject(QTextFormat::ImageObject))
{
    document->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
    connect(document, &QTextDocument::contentsChanged, this, [this, document] { forget_unused(document); });
}

QSizeF EmbeddedPictures::intrinsicSize(QTextDocument *document, int position, const QTextFormat &format)
{
    return m_qt_handler->intrinsicSize(document, position, with_resource(document, format));
}

void EmbeddedPictures::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                                  const QTextFormat &format)
{
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform); // counts on screens of 200% and where a side was left out
    m_qt_handler->drawObject(painter, rect, document, position, with_resource(document, format));
    painter->restore();
}

/// The image format under the short name of a resource that holds the decoded picture.
QTextImageFormat EmbeddedPictures::with_resource(QTextDocument *document, const QTextFormat &format)
{
    QTextImageFormat image = format.toImageFormat();
    const QString name = image.name();
    auto picture = m_pictures.constFind(name.constData());
    if (picture == m_pictures.cend()) {
        const QStringView base64 = base64_text(name);
        if (base64.isEmpty())
            return image;
        const QPixmap pixmap = QPixmap::fromImage(decode_picture(QByteArray::fromBase64(base64.toLatin1())));
        const QUrl resource(u"embedded-picture:%1"_s.arg(++m_decoded));
        picture = m_pictures.insert(name.constData(), {name, resource, pixmap});
    }
    document->addResource(QTextDocument::ImageResource, picture->resource, picture->pixmap);
    image.setName(picture->resource.toString());
    return image;
}

void EmbeddedPictures::forget_unused(QTextDocument *document)
{
    for (auto picture = m_pictures.begin(); picture != m_pictures.end();) {
        if (picture->name.isDetached()) { // the document was cleared: nobody else has the text any more
            document->addResource(QTextDocument::ImageResource, picture->resource, QVariant());
            picture = m_pictures.erase(picture);
        } else {
            ++picture;
        }
    }
}

} // namespace my_classes
