// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "importer.h"

#include "files.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeDatabase>
#include <QtCore/QStringDecoder>
#include <QtCore/QUrl>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

/// In the encoding that the text tells, UTF-8 if it is valid, else the one that never fails.
QString decoded(const QByteArray &bytes, bool html)
{
    const auto told = html ? QStringConverter::encodingForHtml(bytes) : QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(told.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (!decoder.hasError())
        return text;
    return QString::fromLatin1(bytes);
}

/// The picture file beside the text `base` or below; empty if it is elsewhere: a text may come from anybody, and shall
/// not pick up what is private.
QString picture_file(const QString &name, const QUrl &base)
{
    const QString path = QFileInfo(base.resolved(QUrl(name)).toLocalFile()).canonicalFilePath();
    const QString here = QFileInfo(base.toLocalFile()).canonicalPath() + u'/';
    const bool usable = path.startsWith(here) && QFileInfo(path).isFile();
    return usable ? path : QString();
}

/// Replaces pictures in files by pictures in the text.
void embed_pictures(QTextDocument *document, const QUrl &base)
{
    QTextCursor cursor(document);
    while (!(cursor = document->find(QString(QChar::ObjectReplacementCharacter), cursor)).isNull()) {
        QTextImageFormat image = cursor.charFormat().toImageFormat();
        const QString path = image.isValid() ? picture_file(image.name(), base) : QString();
        const QString type = path.isEmpty() ? path : QMimeDatabase().mimeTypeForFile(path).name();
        if (!type.startsWith("image/"_L1))
            continue;
        image.setName("data:"_L1 + type + ";base64,"_L1 + QString::fromLatin1(read_file(path).toBase64()));
        cursor.setCharFormat(image);
    }
}

/// Never goes out for pictures and style sheets by itself.
class QuietDocument : public QTextDocument
{
protected:
    QVariant loadResource(int /*type*/, const QUrl & /*name*/) override { return QByteArray(); }
};

bool is_markdown(const QString &suffix)
{
    return suffix == "md"_L1 || suffix == "markdown"_L1;
}

/// By its name, else by what is in it: pages of the web have any name.
bool is_html(const QByteArray &bytes, const QString &suffix)
{
    if (suffix.startsWith("htm"_L1) || suffix == "xhtml"_L1)
        return true;
    return !is_markdown(suffix) && suffix != "txt"_L1 &&
           QMimeDatabase().mimeTypeForData(bytes).inherits(u"text/html"_s);
}

QString html_of(const QByteArray &bytes, const QString &suffix, const QUrl &address)
{
    const bool html = is_html(bytes, suffix);
    QuietDocument document;
    document.setDefaultFont(QFont(u"Times new roman"_s, 12)); // the editor's, so that it is no format of the text
    const QString text = decoded(bytes, html);
    if (html)
        document.setHtml(text);
    else if (is_markdown(suffix))
        document.setMarkdown(text);
    else
        document.setPlainText(text);
    embed_pictures(&document, address);
    return document.toHtml();
}

} // namespace

QString import_filter()
{
    return QObject::tr("Texts (*.html *.htm *.xhtml *.md *.markdown *.txt);;All files (*)");
}

Section import_section(const QString &path)
{
    const QFileInfo file(path);
    const QByteArray bytes = read_file(path);
    if (bytes.left(10000).contains('\0') && !QStringConverter::encodingForData(bytes))
        throw FileError(QObject::tr("It holds no text."));
    return {file.completeBaseName(), {}, html_of(bytes, file.suffix().toLower(), QUrl::fromLocalFile(path))};
}

} // namespace document_editor
