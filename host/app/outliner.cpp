// SPDX-License-Identifier: Apache-2.0
#include "app/outliner.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeWidgetItemIterator>

#include "app/steps.h"

namespace host::app
{

namespace
{

constexpr int kPathRole = Qt::UserRole;

} // namespace

Outliner::Outliner(Session &session, QWidget *parent) : QTreeWidget(parent), session_(session)
{
    setObjectName("outliner");
    setHeaderLabels({tr("Name"), tr("Type")});
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &Outliner::pick);
    followScene();
}

QStringList Outliner::expandedPaths() const
{
    QStringList paths;
    for (auto item = items_.begin(); item != items_.end(); ++item) {
        if (item.value()->isExpanded())
            paths.append(item.key());
    }
    return paths;
}

void Outliner::followScene()
{
    const Scene &scene = session_.scene();
    if (&scene == shownScene_ && scene.structureRevision() == shownRevision_)
        return;
    const bool isSameScene = &scene == shownScene_;
    const QScopedValueRollback<bool> following(isFollowing_, true);
    const QStringList expanded = isSameScene ? expandedPaths() : QStringList();
    clear();
    items_.clear();
    for (const NodePtr &node : scene.world()->children())
        addItem(DagPath({node}), nullptr);
    for (const QString &path : expanded) {
        if (QTreeWidgetItem *item = items_.value(path))
            item->setExpanded(true);
    }
    if (!isSameScene)
        expandToDepth(0);
    shownScene_ = &scene;
    shownRevision_ = scene.structureRevision();
    followSelection();
}

void Outliner::addItem(const DagPath &path, QTreeWidgetItem *parent)
{
    const NodePtr &node = path.node();
    if (node->isA("shape") && node->isIntermediate())
        return;
    const QString name = QString::fromStdString(node->name());
    const QString type = QString::fromStdString(node->type().name);
    auto *item = parent ? new QTreeWidgetItem(parent, {name, type})
                        : new QTreeWidgetItem(this, {name, type});
    const QString fullName = QString::fromStdString(path.fullName());
    item->setData(0, kPathRole, fullName);
    item->setForeground(1, palette().brush(QPalette::Disabled, QPalette::Text));
    if (node->isShared())
        item->setForeground(0, palette().brush(QPalette::Disabled, QPalette::Text));
    items_.insert(fullName, item);
    for (const NodePtr &child : node->children())
        addItem(path.child(child), item);
}

void Outliner::followSelection()
{
    const QScopedValueRollback<bool> following(isFollowing_, true);
    clearSelection();
    for (const SelectionItem &item : session_.selection().items()) {
        if (item.path.isNull() || item.component)
            continue;
        if (QTreeWidgetItem *row = items_.value(QString::fromStdString(item.path.fullName())))
            row->setSelected(true);
    }
}

void Outliner::pick()
{
    if (isFollowing_)
        return;
    QStringList names;
    for (QTreeWidgetItemIterator item(this, QTreeWidgetItemIterator::Selected); *item; ++item)
        names.append(melQuoted((*item)->data(0, kPathRole).toString()));
    emit selectionPicked(names.isEmpty() ? QString("select -cl ;")
                                         : "select -r " + names.join(' ') + " ;");
}

} // namespace host::app
