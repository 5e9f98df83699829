// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/app_directory.h>
#include <my_classes/translations.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace my_classes {

bool install_translation(const QLocale &locale)
{
    static QPointer<QTranslator> installed;
    auto translator = std::make_unique<QTranslator>();
    const bool found = translator->load(locale, u"my_classes"_s, u"_"_s, app_directory + u"/translations"_s);
    delete installed; // the application forgets it by itself
    if (!found)
        return false;
    installed = translator.release();
    installed->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(installed);
}

} // namespace my_classes
