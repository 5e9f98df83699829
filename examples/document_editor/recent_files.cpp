// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recent_files.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace document_editor {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_longest = 10;
const QString k_key = u"recent_files"_s;

} // namespace

RecentFiles::RecentFiles(QWidget *parent)
    : QMenu(tr("Open &Recent"), parent)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFiles::fill);
}

void RecentFiles::add(const QString &path)
{
    QSettings settings;
    QStringList paths = settings.value(k_key).toStringList();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    settings.setValue(k_key, paths.mid(0, k_longest));
}

void RecentFiles::fill()
{
    clear();
    const QStringList paths = QSettings().value(k_key).toStringList();
    for (const QString &path : paths) {
        QString name = QFileInfo(path).fileName();
        QAction *action = addAction(name.replace(u'&', "&&"_L1), this, [this, path] { Q_EMIT chosen(path); });
        action->setToolTip(QDir::toNativeSeparators(path));
    }
    if (paths.isEmpty())
        addAction(tr("None"))->setEnabled(false);
    addSeparator();
    addAction(tr("&Clear"), this, [] { QSettings().remove(k_key); })->setEnabled(!paths.isEmpty());
}

} // namespace document_editor
