// SPDX-License-Identifier: Apache-2.0
// The submenu of files opened lately, remembered from run to run in the user's settings.
#pragma once

#include <QMenu>

namespace host::app
{

class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget *parent = nullptr);
    // Puts the file on top.
    void add(const QString &path);

signals:
    void chosen(const QString &path);

private:
    void rebuild();
    QStringList paths() const;
};

} // namespace host::app
