// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "document_file.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QRegularExpression>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_version = 1;

const QByteArray k_magic = "<!DOCTYPE html>\n<html>\n<head>\n<meta name=\"my-classes-document\" content=\"";

// No script, no other server: a browser shows what the file holds, whoever wrote it.
const QByteArray k_head = R"(<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; img-src data:; style-src 'unsafe-inline'">
<meta name="viewport" content="width=device-width">
)";

const QByteArray k_style = R"(<style>
html { color-scheme: light; background: #ddd; }
section { background: #fff; max-width: 45em; margin: 1em auto; padding: 2em 4em; overflow-wrap: break-word; }
section > h1.title { font: bold 1em sans-serif; color: #777; white-space: pre-wrap; }
img { max-width: 100%; }
@media print { html, section { background: none; padding: 0; } section + section { break-before: page; } }
</style>
</head>
<body>
)";

const QByteArray k_section_end = "\n</section>\n";
const QByteArray k_end = "</body>\n</html>\n";
const QByteArray k_checksum = "<!-- blake2b-256 ";
const QByteArray k_checksum_end = " -->\n";

/// On one line, and free of markup, whatever it is.
QByteArray escaped(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', "&#10;"_L1).replace(u'\r', "&#13;"_L1).toUtf8();
}

QString unescaped(QString text)
{
    text.replace("&#10;"_L1, "\n"_L1).replace("&#13;"_L1, "\r"_L1).replace("&quot;"_L1, "\""_L1);
    return text.replace("&lt;"_L1, "<"_L1).replace("&gt;"_L1, ">"_L1).replace("&amp;"_L1, "&"_L1);
}

QByteArray checksum(QByteArrayView bytes)
{
    return k_checksum + QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256).toHex() + k_checksum_end;
}

QByteArray section_bytes(const Section &section)
{
    const QByteArray html = section.html.toUtf8();
    const QByteArray language = escaped(QString(section.language).replace(u'_', u'-')); // as in HTML
    const QByteArray closed =
        section.closed_at < 0 ? QByteArray() : "\" hidden data-closed=\"" + QByteArray::number(section.closed_at);
    return "<section lang=\"" + language + "\" data-bytes=\"" + QByteArray::number(html.size()) + closed +
           "\"><h1 class=\"title\">" + escaped(section.title) + "</h1>\n" + html + k_section_end;
}

[[noreturn]] void refuse_damaged()
{
    throw FileError(QObject::tr("The file is damaged: a part of it is missing or was changed by another program."));
}

/// Walks through the bytes, which outlive it. What it does not find is damage, whatever the checksum says.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    bool skip(QByteArrayView expected)
    {
        const bool found = m_rest.startsWith(expected);
        m_rest = m_rest.sliced(found ? expected.size() : 0);
        return found;
    }

    QByteArrayView line()
    {
        const qsizetype end = m_rest.indexOf('\n');
        if (end < 0)
            refuse_damaged();
        return take(end + 1).chopped(1);
    }

    QByteArrayView take(qsizetype size)
    {
        if (size < 0 || size > m_rest.size())
            refuse_damaged();
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }

private:
    QByteArrayView m_rest;
};

Section read_section(Reader &reader, QByteArrayView line)
{
    static const QRegularExpression tag(
        uR"re(^<section lang="([^"]*)" data-bytes="(\d+)"(?: hidden data-closed="(\d+)")?><h1 class="title">([^<]*)</h1>$)re"_s);
    const QRegularExpressionMatch match = tag.match(QString::fromUtf8(line));
    if (!match.hasMatch())
        refuse_damaged();
    Section section;
    section.language = unescaped(match.captured(1)).replace(u'-', u'_');
    section.title = unescaped(match.captured(4));
    section.closed_at = match.hasCaptured(3) ? match.captured(3).toInt() : -1;
    section.html = QString::fromUtf8(reader.take(match.captured(2).toLongLong()));
    if (!reader.skip(k_section_end))
        refuse_damaged();
    return section;
}

void check_version(const QByteArray &bytes)
{
    if (!bytes.startsWith(k_magic))
        throw ForeignFile(QObject::tr("The file is no document of this program."));
    const qsizetype end = bytes.indexOf('"', k_magic.size());
    const int version = bytes.sliced(k_magic.size(), qMax<qsizetype>(0, end - k_magic.size())).toInt();
    if (version > k_version)
        throw FileError(QObject::tr("The file was written by a newer version of this program."));
    if (version != k_version)
        refuse_damaged();
}

void check_checksum(const QByteArray &bytes)
{
    const qsizetype at = bytes.lastIndexOf(k_checksum);
    if (at < 0 || QByteArrayView(bytes).sliced(at) != checksum(QByteArrayView(bytes).first(at)))
        refuse_damaged();
}

} // namespace

QByteArray to_bytes(const Document &document)
{
    QByteArray bytes = k_magic + QByteArray::number(k_version) + "\">\n" + k_head;
    if (!document.origin.isEmpty())
        bytes += "<meta name=\"origin\" content=\"" + escaped(document.origin) + "\" data-stamp=\"" +
                 escaped(document.origin_stamp) + "\">\n";
    const QString title = document.sections.isEmpty() ? QString() : document.sections.constFirst().title;
    bytes += "<title>" + escaped(title) + "</title>\n" + k_style;
    for (const Section &section : document.sections + document.closed)
        bytes += section_bytes(section);
    bytes += k_end;
    return bytes + checksum(bytes);
}

Document from_bytes(const QByteArray &bytes)
{
    check_version(bytes);
    check_checksum(bytes);
    static const QRegularExpression origin(uR"re(^<meta name="origin" content="([^"]*)" data-stamp="([^"]*)">$)re"_s);
    Document document;
    Reader reader(bytes);
    for (QByteArrayView line = reader.line(); line != "<body>"; line = reader.line()) {
        if (const auto match = origin.match(QString::fromUtf8(line)); match.hasMatch()) {
            document.origin = unescaped(match.captured(1));
            document.origin_stamp = unescaped(match.captured(2));
        }
    }
    while (!reader.skip(k_end)) {
        const QByteArrayView line = reader.line();
        const Section section = read_section(reader, line);
        (section.closed_at < 0 ? document.sections : document.closed).append(section);
    }
    return document;
}

} // namespace document_editor
