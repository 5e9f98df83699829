// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/html_fragments.h"

#include <QtCore/QLatin1StringView>
#include <QtCore/QPointer>
#include <QtCore/QStringBuilder>
#include <QtGui/QTextCursor>
#include <QtWidgets/QTextEdit>

namespace my_classes {

using namespace Qt::StringLiterals;

QString table_html(int rows, int columns)
{
    const QString table_style = u"border: 1px solid black; border-collapse: collapse; width: 100%;"_s;
    const QString cell_style = u"border: 1px solid black; min-width: 200px; min-height: 30px; padding: 8px;"_s;

    const QString cell = u"<td contenteditable='true' style='" % cell_style % u"'></td>";
    const QString row = u"<tr>" % cell.repeated(columns) % u"</tr>";
    return u"\n            <table border=\"1\" style=\"" % table_style % u"\">\n                " % row.repeated(rows) %
           u"\n            </table>\n        ";
}

QString image_html(QByteArrayView base64_png, const QString &width, const QString &height)
{
    // One allocation, whatever the size: the text of a photograph runs into hundreds of megabytes.
    return u"<img src=\"data:image/png;base64," % QLatin1StringView(base64_png) % u"\" width=\"" % width %
           u"\" height=\"" % height % u"\">";
}

void insert_html(QTextEdit *text_edit, const QStringList &fragments)
{
    const QPointer<QTextEdit> here(text_edit);
    QTextCursor cursor = text_edit->textCursor();
    cursor.beginEditBlock(); // told of inside QTextCursor::insertHtml(), a change ends there in a crash
    for (const QString &html : fragments)
        cursor.insertHtml(html);
    cursor.endEditBlock();
    if (here)
        text_edit->ensureCursorVisible();
}

} // namespace my_classes
