// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "preferences.h"

#include <my_classes/my_spellchecker.h>

#include <QtCore/QLocale>
#include <QtCore/QSettings>

namespace document_editor {

using namespace Qt::StringLiterals;
using my_spellchecker::MySpellChecker;

Preferences &Preferences::instance()
{
    static Preferences preferences;
    return preferences;
}

bool Preferences::shows_page() const
{
    return QSettings().value(u"page_view"_s, true).toBool();
}

void Preferences::set_shows_page(bool on)
{
    set(u"page_view"_s, on);
}

Paper Preferences::paper() const
{
    const int paper = QSettings().value(u"paper"_s).toInt();
    return Paper(qBound(int(Paper::System), paper, int(Paper::Dark)));
}

void Preferences::set_paper(Paper paper)
{
    set(u"paper"_s, int(paper));
}

bool Preferences::marks_while_writing() const
{
    return QSettings().value(u"marking"_s, true).toBool();
}

void Preferences::set_marks_while_writing(bool on)
{
    set(u"marking"_s, on);
}

QString Preferences::language() const
{
    const QString chosen = QSettings().value(u"language"_s, QLocale().name()).toString();
    for (const QString &language : {chosen, u"en"_s}) {
        if (language.isEmpty() || MySpellChecker::is_available(language))
            return language;
    }
    return {};
}

void Preferences::set_language(const QString &language)
{
    set(u"language"_s, language);
}

void Preferences::set(const QString &key, const QVariant &value)
{
    QSettings().setValue(key, value);
    Q_EMIT changed();
}

} // namespace document_editor
