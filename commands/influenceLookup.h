// SPDX-License-Identifier: Apache-2.0
// Which influence of a skin cluster a joint column is. Built once per skin cluster and edit; each
// question is then one look into a hash.
#pragma once

#include <QHash>
#include <QString>

#include <maya/MDagPath.h>
#include <maya/MObject.h>

class influenceLookup
{
public:
    explicit influenceLookup(const MObject &skinCluster);

    unsigned int count() const { return count_; }

    // The influence's index, -1 if there is none. A joint is known by its full DAG path, since
    // joints of one name are common (a left and a right "hand"). If the path leads nowhere any
    // more, the column's header text is taken for the name of an influence.
    int influenceOf(const MDagPath &joint, const QString &headerText) const;

private:
    unsigned int count_ = 0;
    QHash<QString, int> byPath_;
    QHash<QString, int> byName_; // of influences of one name the first
};
