// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/pasted_pictures.h"

#include "editor/html_fragments.h"
#include "editor/pictures.h"
#include "editor/wait_cursor.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QImageReader>
#include <QtGui/QTextDocument>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QTextEdit>

#include <algorithm>

namespace my_classes {

namespace {

bool is_picture_file(const QUrl &url)
{
    const QString path = url.toLocalFile();
    return !path.isEmpty() &&
           QImageReader::supportedImageFormats().contains(QFileInfo(path).suffix().toLower().toLatin1());
}

bool has_picture_files(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return !urls.isEmpty() && std::all_of(urls.cbegin(), urls.cend(), is_picture_file);
}

/// A picture out of a browser comes with HTML that only names it, cells of a spreadsheet with a picture of themselves.
bool has_picture_alone(const QMimeData *data)
{
    if (!data->hasImage())
        return false;
    if (!data->hasHtml())
        return !data->hasText();
    QString text = QTextDocumentFragment::fromHtml(data->html()).toPlainText();
    return text.remove(QChar::ObjectReplacementCharacter).trimmed().isEmpty();
}

QList<QImage> pictures_of(const QMimeData *data)
{
    QList<QImage> pictures;
    if (has_picture_files(data)) {
        const QList<QUrl> urls = data->urls();
        for (const QUrl &url : urls)
            pictures << read_picture(url.toLocalFile());
    } else if (has_picture_alone(data)) {
        pictures << qvariant_cast<QImage>(data->imageData());
    }
    return pictures;
}

/// Empty if the picture cannot be embedded.
QString embedding_html(const QImage &picture, int most_width)
{
    if (picture.isNull() || !is_buildable_picture(picture.width(), picture.height()))
        return {};
    const std::optional<QByteArray> png = encode_picture(picture);
    if (!png)
        return {};
    QSizeF size = picture.deviceIndependentSize();
    if (size.width() > most_width)
        size *= most_width / size.width();
    const auto side = [](double pixels) { return QString::number(qMax(qRound(pixels), 1)); };
    return image_html(png->toBase64(), side(size.width()), side(size.height()));
}

} // namespace

bool offers_pictures(const QMimeData *data)
{
    return data->hasImage() || has_picture_files(data);
}

bool insert_pictures(QTextEdit *text_edit, const QMimeData *data)
{
    const WaitCursor wait;
    const int margins = qRound(2 * text_edit->document()->documentMargin());
    const int most_width = qMax(text_edit->viewport()->width() - margins, 1);
    QStringList fragments;
    const QList<QImage> pictures = pictures_of(data);
    for (const QImage &picture : pictures)
        fragments << embedding_html(picture, most_width);
    if (fragments.isEmpty() || fragments.contains(QString()))
        return false;
    insert_html(text_edit, fragments);
    return true;
}

} // namespace my_classes
