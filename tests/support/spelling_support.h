// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "test_support.h"

namespace test_support {

/// Where the person's word list is, and more dictionaries in "hunspell".
inline QString word_list_directory()
{
    return qEnvironmentVariable("ENCHANT_CONFIG_DIR");
}

/// Installs a dictionary of one word.
inline void write_dictionary(const QString &tag, const QByteArray &word)
{
    const QString path = word_list_directory() + QStringLiteral("/hunspell/") + tag;
    QDir().mkpath(QFileInfo(path).path());
    QFile affixes(path + QStringLiteral(".aff"));
    QFile words(path + QStringLiteral(".dic"));
    QVERIFY(affixes.open(QIODevice::WriteOnly) && words.open(QIODevice::WriteOnly));
    affixes.write("SET UTF-8\n");
    words.write("1\n" + word + '\n');
}

/// What is underlined as misspelled, drawn below the text: "^~~ ^~~" for two words.
inline QString underlines(const QTextBlock &block)
{
    QTextCharFormat format;
    format.setUnderlineColor(Qt::red);
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    QString drawn;
    for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
        if (range.format == format)
            drawn += QString(range.start - drawn.size(), u' ') + u'^' + QString(range.length - 1, u'~');
    }
    return drawn;
}

/// The underlines of a text by the plain way: one expression for each word, a line under each of its matches.
inline QString plain_underlines(const QString &text, const QSet<QString> &words)
{
    QString drawn(text.size(), u' ');
    for (const QString &word : words) {
        const QRegularExpression expression(QStringLiteral("\\b") + word + QStringLiteral("\\b"),
                                            QRegularExpression::UseUnicodePropertiesOption);
        if (!expression.isValid())
            continue;
        for (auto matches = expression.globalMatch(text); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            std::fill_n(drawn.begin() + match.capturedStart(), match.capturedLength(), u'~');
        }
    }
    return drawn.replace(QRegularExpression(QStringLiteral("(?<!~)~")), QStringLiteral("^"))
        .remove(QRegularExpression(QStringLiteral(" +$")));
}

/// The same of all paragraphs.
inline QString underlines(const QTextDocument *document)
{
    QStringList lines;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        lines.append(underlines(block));
    return lines.join(u'\n');
}

} // namespace test_support
