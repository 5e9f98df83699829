// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/dictionary.h"

#include "spelling/word_forms.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <stdexcept>

namespace my_spellchecker {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype k_most_verdicts = 250'000;  // distinct words; about 30 MB
constexpr qsizetype k_most_suggestions = 2'000; // words asked for
constexpr qsizetype k_longest_word = 200;       // code units; a longer line of a word list is not read again

/// One for the process: it keeps every loaded dictionary.
const std::shared_ptr<EnchantBroker> &shared_broker()
{
    static const std::shared_ptr<EnchantBroker> broker(enchant_broker_init(), enchant_broker_free);
    return broker;
}

QStringList engines()
{
    QStringList names;
    enchant_broker_describe(
        shared_broker().get(),
        [](const char *name, const char *, const char *, void *list) {
            static_cast<QStringList *>(list)->append(QString::fromUtf8(name));
        },
        &names);
    return names;
}

/// The tag among `tags` that serves `lang`; empty if there is none.
QString best_tag(const QString &lang, const QStringList &tags)
{
    QString wanted = lang;
    wanted.replace(u'-', u'_');
    if (wanted.contains(u'_'))
        return tags.contains(wanted) ? wanted : QString();

    const QString usual = wanted == "en"_L1 ? u"en_US"_s : wanted + u'_' + wanted.toUpper();
    const QStringList candidates{QLocale::system().name(), usual, wanted};
    for (const QString &tag : candidates) {
        if ((tag == wanted || tag.startsWith(wanted + u'_')) && tags.contains(tag))
            return tag;
    }
    const auto any =
        std::find_if(tags.begin(), tags.end(), [&wanted](const QString &tag) { return tag.startsWith(wanted + u'_'); });
    return any == tags.end() ? QString() : *any;
}

/// Whether `word` can stand in a word list, as a line of whole characters: engines complain of anything else.
bool is_line(const QString &word)
{
    return !word.isEmpty() && word.size() <= k_longest_word && word.isValidUtf16() &&
           std::none_of(word.begin(), word.end(), [](QChar c) { return c < u' ' || c == QChar::LineSeparator; });
}

} // namespace

QStringList Dictionary::installed_tags()
{
    QStringList tags;
    enchant_broker_list_dicts(
        shared_broker().get(),
        [](const char *tag, const char *, const char *, const char *, void *list) {
            static_cast<QStringList *>(list)->append(QString::fromUtf8(tag));
        },
        &tags);
    tags.sort();
    tags.removeDuplicates();
    return tags;
}

std::shared_ptr<Dictionary> Dictionary::for_language(const QString &lang)
{
    static QHash<QString, std::shared_ptr<Dictionary>> by_language;
    static QHash<QString, std::shared_ptr<Dictionary>> by_tag;
    if (const auto known = by_language.constFind(lang); known != by_language.constEnd())
        return *known;

    const QStringList tags = installed_tags();
    const QString tag = lang.isEmpty() ? QString() : best_tag(lang, tags);
    if (tag.isEmpty()) {
        const QString there = tags.isEmpty() ? u"none"_s : tags.join(u", "_s);
        throw std::runtime_error(u"No dictionary for the language \"%1\". Dictionaries of the engines %2: %3."_s
                                     .arg(lang, engines().join(u", "_s), there)
                                     .toStdString());
    }
    std::shared_ptr<Dictionary> &dictionary = by_tag[tag];
    if (!dictionary)
        dictionary = std::make_shared<Dictionary>(shared_broker(), tag);
    by_language.insert(lang, dictionary);
    return dictionary;
}

Dictionary::Dictionary(std::shared_ptr<EnchantBroker> broker, const QString &tag)
    : m_broker(std::move(broker))
    , m_tag(tag)
{
}

Dictionary::~Dictionary()
{
    unload();
}

void Dictionary::load()
{
    m_dictionary = enchant_broker_request_dict(m_broker.get(), m_tag.toUtf8().constData());
    if (!m_dictionary)
        throw std::runtime_error(u"The dictionary \"%1\" cannot be loaded any more."_s.arg(m_tag).toStdString());
    for (const QByteArray &word : std::as_const(m_session_words))
        enchant_dict_add_to_session(m_dictionary, word.constData(), word.size());
}

void Dictionary::unload()
{
    if (m_dictionary)
        enchant_broker_free_dict(m_broker.get(), m_dictionary);
    m_dictionary = nullptr;
}

int Dictionary::refresh()
{
    const Stamp stamp = word_list_stamp();
    if (m_dictionary && stamp == m_word_list_stamp)
        return m_generation;
    // Enchant reads a changed list again, but tells by the whole second whether it has changed: a word that another
    // program added in the second of the last change would be missed. Loading takes it some ten milliseconds.
    unload();
    load();
    m_word_list_stamp = stamp;
    m_is_misspelled.clear();
    m_suggestions.clear();
    return ++m_generation;
}

QStringList Dictionary::suggestions(const QString &word)
{
    refresh();
    if (!is_line(word))
        return {};
    if (const auto known = m_suggestions.constFind(word); known != m_suggestions.constEnd())
        return *known;

    const QByteArray utf8 = with_straight_apostrophes(word).toUtf8();
    QStringList words;
    size_t count = 0;
    if (char **list = enchant_dict_suggest(m_dictionary, utf8.constData(), utf8.size(), &count)) {
        for (size_t i = 0; i < count; ++i)
            words.append(QString::fromUtf8(list[i]));
        enchant_dict_free_string_list(m_dictionary, list);
    }
    if (word.contains(QChar(0x2019)))
        words.replaceInStrings(u"'"_s, QString(QChar(0x2019)));
    if (m_suggestions.size() >= k_most_suggestions)
        m_suggestions.clear();
    return *m_suggestions.insert(word, words);
}

void Dictionary::add(const QString &word)
{
    const QString added = with_straight_apostrophes(word.trimmed());
    if (!is_line(added))
        return;
    refresh();
    const QByteArray utf8 = added.toUtf8();
    enchant_dict_add(m_dictionary, utf8.constData(), utf8.size());
    const Stamp stamp = word_list_stamp();
    const qint64 line_length = utf8.size() + 1;
    const qint64 growth = stamp.second - m_word_list_stamp.second;
    if (growth < line_length) { // the list cannot be written
        enchant_dict_add_to_session(m_dictionary, utf8.constData(), utf8.size());
        m_session_words.append(utf8);
    }
    if (growth <= line_length) // otherwise another program has added words, too: the old stamp makes them read
        m_word_list_stamp = stamp;
    forget_verdicts_of(added);
    m_suggestions.clear();
    ++m_generation;
}

bool Dictionary::is_misspelled(QStringView word)
{
    // A look-up without a copy of the word: most words of a text have been asked before.
    const QString key = QString::fromRawData(word.data(), word.size());
    if (const auto known = m_is_misspelled.constFind(key); known != m_is_misspelled.constEnd())
        return *known;
    if (m_is_misspelled.size() >= k_most_verdicts)
        m_is_misspelled.clear();
    const QString own = word.toString();
    return *m_is_misspelled.insert(own, ask(own));
}

/// Whether the engine calls `word` misspelled. An engine that fails over a word calls nothing misspelled.
bool Dictionary::ask(const QString &word) const
{
    const QByteArray utf8 = with_straight_apostrophes(word).toUtf8();
    return enchant_dict_check(m_dictionary, utf8.constData(), utf8.size()) > 0;
}

/// When the person's word list last changed and how long it is. No list is like an empty one, which Enchant makes of
/// it.
Dictionary::Stamp Dictionary::word_list_stamp() const
{
    const QString standard = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/enchant"_L1;
    const QString directory = qEnvironmentVariable("ENCHANT_CONFIG_DIR", standard);
    const QFileInfo list(directory + u'/' + m_tag + ".dic"_L1);
    return list.size() > 0 ? Stamp(list.lastModified(), list.size()) : Stamp();
}

void Dictionary::forget_verdicts_of(const QString &word)
{
    const QString added = comparable(word);
    m_is_misspelled.removeIf(
        [&](const auto &verdict) { return verdict.value() && comparable(verdict.key()) == added; });
}

} // namespace my_spellchecker
