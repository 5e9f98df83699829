// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recent_files.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtWidgets/QMenu>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_longest = 10;
const QString k_key = u"recent_files"_s;

} // namespace

void add_recent_file(const QString &path)
{
    QSettings settings;
    QStringList paths = settings.value(k_key).toStringList();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    settings.setValue(k_key, paths.mid(0, k_longest));
}

void fill_recent_files(QMenu *menu, const std::function<void(const QString &)> &open)
{
    menu->clear();
    const QStringList paths = QSettings().value(k_key).toStringList();
    for (const QString &path : paths) {
        QString name = QFileInfo(path).fileName();
        QAction *action = menu->addAction(name.replace(u'&', "&&"_L1), menu, [open, path] { open(path); });
        action->setToolTip(QDir::toNativeSeparators(path));
    }
    if (paths.isEmpty())
        menu->addAction(QObject::tr("None"))->setEnabled(false);
    menu->addSeparator();
    menu->addAction(QObject::tr("&Clear"), menu, [] { QSettings().remove(k_key); })->setEnabled(!paths.isEmpty());
}

} // namespace document_editor
