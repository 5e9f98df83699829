// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/word_characters.h"

#include <QtCore/QRegularExpression>

#include <array>
#include <bitset>
#include <memory>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_page_size = 256; // code points
constexpr int k_page_count = 0x110000 / k_page_size;

using Page = std::bitset<k_page_size>;

std::unique_ptr<Page> make_page(char32_t first)
{
    static const QRegularExpression word_run(u"\\w+"_s, QRegularExpression::UseUnicodePropertiesOption);
    auto page = std::make_unique<Page>();
    if (QChar::isSurrogate(first))
        return page; // half a character is none
    QString text;
    for (char32_t c = first; c < first + k_page_size; ++c)
        text += QChar::fromUcs4(c);
    const qsizetype width = text.size() / k_page_size;
    for (QRegularExpressionMatchIterator runs = word_run.globalMatch(text); runs.hasNext();) {
        const QRegularExpressionMatch run = runs.next();
        for (qsizetype i = run.capturedStart(); i < run.capturedEnd(); i += width)
            page->set(i / width);
    }
    return page;
}

} // namespace

bool is_word_character_by_expression(char32_t c)
{
    static std::array<std::unique_ptr<Page>, k_page_count> pages;
    if (c >= 0x110000)
        return false;
    std::unique_ptr<Page> &page = pages[c / k_page_size];
    if (!page)
        page = make_page(c - c % k_page_size);
    return page->test(c % k_page_size);
}

} // namespace my_classes
