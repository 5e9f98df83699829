// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QTextDocument>
#include <QtGui/QTextObjectInterface>

QT_BEGIN_NAMESPACE
class QAbstractTextDocumentLayout;
class QTextImageFormat;
QT_END_NAMESPACE

namespace my_classes {

/// Shows the pictures that a document holds as base64 text.
///
/// Qt's own handling takes the text apart at every repaint and key stroke, a second and more for a photograph, and
/// gives up, with a warning, on pictures beyond its decoders' default limit. This one decodes each picture once and
/// leaves everything else to the handling that it has found. It belongs to the document's layout.
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
    friend class PictureHandling;

    struct Picture
    {
        QString name; // shared with the document, so that its address is that of no other text
        QUrl resource;
    };

    struct Handled
    {
        QTextObjectInterface *handler;
        QTextDocument *document;
        QTextImageFormat format;
    };

    Handled handled(QTextDocument *document, const QTextFormat &format);
    QUrl decoded(const QString &name);
    void forget_unused();
    void give_back();

    QPointer<QObject> m_found; // the handling before this one
    QTextDocument m_store;     // of decoded pictures: nothing is left in the document shown
    QHash<const QChar *, Picture> m_pictures;
    int m_decoded = 0;
    int m_users = 0;
};

/// Has a document show its embedded pictures while it lives. Several may be at work on one document; the last one
/// leaves the layout as the first has found it.
class PictureHandling
{
public:
    explicit PictureHandling(QTextDocument *document);
    ~PictureHandling();
    Q_DISABLE_COPY_MOVE(PictureHandling)

    /// False after the layout has gone, and has taken the handling along.
    bool is_at_work() const { return !m_pictures.isNull(); }

private:
    QPointer<EmbeddedPictures> m_pictures; // gone with the layout
};

} // namespace my_classes
