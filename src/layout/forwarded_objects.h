// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextDocument>

namespace my_classes {

/// Has the objects of a copy measured and drawn as those of its source.
class ForwardedObjects : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Belongs to the layout of the copy.
    ForwardedObjects(QTextDocument *source, QAbstractTextDocumentLayout *layout);

    /// For all that the source has handlers for now.
    void register_at(QAbstractTextDocumentLayout *layout);

    QSizeF intrinsicSize(QTextDocument *copy, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *copy, int position,
                    const QTextFormat &format) override;

private:
    QTextObjectInterface *handler(const QTextFormat &format) const;

    QPointer<QTextDocument> m_source;
};

} // namespace my_classes
