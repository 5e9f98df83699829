// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "spelling/dictionary.h"

#include <my_classes/my_spellchecker.h>

#include <QtCore/QLocale>

#include <stdexcept>

namespace my_spellchecker {

using namespace Qt::StringLiterals;

namespace {

QString with_first_capital(const QString &name, const QLocale &locale)
{
    return locale.toUpper(name.left(1)) + name.mid(1);
}

/// The name in itself of a language whatever its region. Qt has names like "British English" for some regions: the
/// name of most of them is that of the language.
QString name_of_language(QLocale::Language language, QLocale::Script script)
{
    QHash<QString, int> votes;
    QString name;
    const QList<QLocale> locales = QLocale::matchingLocales(language, script, QLocale::AnyTerritory);
    for (const QLocale &locale : locales) {
        const QString own = locale.nativeLanguageName();
        if (++votes[own] > votes.value(name))
            name = own;
    }
    return name;
}

} // namespace

QStringList MySpellChecker::installed_languages()
{
    return Dictionary::installed_tags();
}

bool MySpellChecker::is_available(const QString &lang)
{
    try {
        return Dictionary::for_language(lang) != nullptr;
    } catch (const std::runtime_error &) {
        return false;
    }
}

QString MySpellChecker::language_name(const QString &lang)
{
    const QString tag = QString(lang).replace(u'-', u'_');
    const QLocale::Language language = QLocale::codeToLanguage(tag.section(u'_', 0, 0));
    if (language == QLocale::AnyLanguage || language == QLocale::C)
        return lang;
    const QString region = tag.section(u'_', -1);
    const QLocale::Territory territory = tag.contains(u'_') ? QLocale::codeToTerritory(region) : QLocale::AnyTerritory;
    const QLocale locale(language, territory);
    QString name = with_first_capital(name_of_language(language, locale.script()), locale);
    if (name.isEmpty())
        return lang;
    if (!tag.contains(u'_'))
        return name;
    const bool is_known = territory != QLocale::AnyTerritory && locale.territory() == territory;
    const QString region_name = is_known ? locale.nativeTerritoryName() : QString();
    return u"%1 (%2)"_s.arg(name, region_name.isEmpty() ? tag.section(u'_', 1) : region_name);
}

} // namespace my_spellchecker
