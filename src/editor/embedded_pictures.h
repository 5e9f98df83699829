// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtGui/QPixmap>
#include <QtGui/QTextObjectInterface>

QT_BEGIN_NAMESPACE
class QTextDocument;
class QTextImageFormat;
QT_END_NAMESPACE

namespace my_classes {

/// Shows the pictures that a document holds as base64 text.
///
/// Qt's own handling takes the text apart at every repaint and key stroke, a second and more for a photograph, and
/// gives up, with a warning, on pictures beyond its decoders' default limit. This one decodes each picture once and
/// leaves everything else to Qt. It belongs to the document's layout.
class EmbeddedPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit EmbeddedPictures(QTextDocument *document);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    struct Picture
    {
        QString name; // shared with the document, so that its address is that of no other text
        QUrl resource;
        QPixmap pixmap;
    };

    QTextImageFormat with_resource(QTextDocument *document, const QTextFormat &format);
    void forget_unused(QTextDocument *document);

    QTextObjectInterface *m_qt_handler;
    QHash<const QChar *, Picture> m_pictures;
    int m_decoded = 0;
};

} // namespace my_classes
