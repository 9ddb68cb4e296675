// SPDX-License-Identifier: Apache-2.0
// The Outliner: the scene's hierarchy as a tree whose selection is the scene's selection.
#pragma once

#include <QHash>
#include <QTreeWidget>

#include "scene/session.h"

namespace host::app
{

class Outliner : public QTreeWidget
{
    Q_OBJECT

public:
    explicit Outliner(Session &session, QWidget *parent = nullptr);

    // Rebuilds the tree if nodes came, went, moved or were renamed since the last call; keeps what
    // was expanded.
    void followScene();
    // Marks what the session has selected.
    void followSelection();

signals:
    // The user picked items: the MEL that selects them.
    void selectionPicked(const QString &mel);

private slots:
    void pick();

private:
    void addItem(const DagPath &path, QTreeWidgetItem *parent);
    QStringList expandedPaths() const;

    Session &session_;
    QHash<QString, QTreeWidgetItem *> items_; // by full path name
    const Scene *shownScene_ = nullptr;       // compared only, never looked into
    unsigned long shownRevision_ = 0;
    bool isFollowing_ = false; // the tree's selection changes because the scene's did
};

} // namespace host::app
