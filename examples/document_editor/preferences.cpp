// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "preferences.h"

#include <my_classes/my_spellchecker.h>

#include <QtCore/QLocale>
#include <QtCore/QSettings>

namespace document_editor {

Preferences &Preferences::instance()
{
    static Preferences preferences;
    return preferences;
}

QString Preferences::language() const
{
    const QString chosen = value("language", QLocale().name()).toString();
    for (const QString &language : {chosen, QStringLiteral("en")}) {
        if (language.isEmpty() || my_spellchecker::MySpellChecker::is_available(language))
            return language;
    }
    return {};
}

QVariant Preferences::value(const char *key, const QVariant &at_first)
{
    return QSettings().value(QLatin1StringView(key), at_first);
}

void Preferences::set(const char *key, const QVariant &value)
{
    QSettings().setValue(QLatin1StringView(key), value);
    Q_EMIT changed();
}

} // namespace document_editor
