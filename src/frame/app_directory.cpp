// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/app_directory.h>
#include <my_classes/my_utils.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

using namespace Qt::StringLiterals;

#ifdef MY_CLASSES_EMBEDS_DATA
// The linker drops a static library's resources unless something asks for them; the macro does not work in a namespace.
static void keep_embedded_data()
{
    Q_INIT_RESOURCE(my_classes_data);
}
#endif

namespace my_utils {

namespace {

/// Where installations keep architecture-dependent files: bin, lib, lib/<architecture>, libexec/<something>/<more>.
constexpr int k_deepest_module_directory = 3;

const char k_inside_this_module = 0;

bool has_icons(const QString &directory)
{
    return QFileInfo(directory + "/icons"_L1).isDir();
}

/// The file of this program; empty if the system does not tell. `name` is what it was started as.
QString program_file(const QString &name)
{
    const QString linked = QFile::symLinkTarget(u"/proc/self/exe"_s);
    return linked.isEmpty() ? QStandardPaths::findExecutable(name) : linked;
}

/// The shared library or program that this code was loaded from; empty if the system does not tell.
QString module_file()
{
#ifdef Q_OS_UNIX
    Dl_info module = {};
    if (dladdr(&k_inside_this_module, &module) == 0 || module.dli_fname == nullptr)
        return {};
    // Of a program some systems only know the name that it was started by, which says little if found along PATH.
    const QString file = QFile::decodeName(module.dli_fname);
    return file.contains(u'/') && QFileInfo(file).isFile() ? file : program_file(file);
#else
    return {};
#endif
}

QString module_directory()
{
    const QString file = QFileInfo(module_file()).canonicalFilePath();
    return file.isEmpty() ? QString() : QFileInfo(file).path();
}

} // namespace

QString get_app_directory()
{
    const QString wanted = qEnvironmentVariable("MY_CLASSES_APP_DIRECTORY");
    if (!wanted.isEmpty())
        return QDir::cleanPath(QDir(wanted).absolutePath());

    static const QString module = module_directory(); // found while loading: a relative name holds only then
    QDir ancestor(module);
    for (int level = 0; !module.isEmpty() && level <= k_deepest_module_directory; ++level) {
        const QString shared_data = ancestor.filePath(u"share/my_classes"_s);
        if (has_icons(shared_data))
            return QDir::cleanPath(shared_data);
        if (!ancestor.cdUp())
            break;
    }

    const QStringList known_places = QStringLiteral(MY_CLASSES_DATA_DIRECTORIES).split(u'|', Qt::SkipEmptyParts);
    for (const QString &place : known_places) {
        if (has_icons(place))
            return place;
    }

#ifdef MY_CLASSES_EMBEDS_DATA
    keep_embedded_data();
    return u":/my_classes"_s;
#else
    return module.isEmpty() ? QDir::currentPath() : module;
#endif
}

} // namespace my_utils

namespace my_classes {

#if defined(__GNUC__) && !defined(__APPLE__)
// Before the initialisers of a program that the static library is linked into, which may already use it.
__attribute__((init_priority(101)))
#endif
const QString app_directory = my_utils::get_app_directory();

} // namespace my_classes
