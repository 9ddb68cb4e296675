// SPDX-License-Identifier: Apache-2.0
#include "app/recentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace host::app
{

namespace
{

constexpr int kMaxRecentFiles = 10;
const char kSettingsKey[] = "recentFiles";

} // namespace

RecentFiles::RecentFiles(QWidget *parent) : QMenu(tr("Recent &Files"), parent)
{
    rebuild();
}

QStringList RecentFiles::paths() const
{
    return QSettings().value(kSettingsKey).toStringList();
}

void RecentFiles::add(const QString &path)
{
    QStringList all = paths();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    all.removeAll(absolute);
    all.prepend(absolute);
    QSettings().setValue(kSettingsKey, QStringList(all.mid(0, kMaxRecentFiles)));
    rebuild();
}

void RecentFiles::rebuild()
{
    clear();
    for (const QString &path : paths()) {
        QAction *action = addAction(QFileInfo(path).fileName());
        action->setToolTip(path);
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    setToolTipsVisible(true);
    menuAction()->setEnabled(!isEmpty());
}

} // namespace host::app
