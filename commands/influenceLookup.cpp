// SPDX-License-Identifier: Apache-2.0
#include "commands/influenceLookup.h"

#include "model/mayaText.h"

#include <maya/MDagPathArray.h>
#include <maya/MFnSkinCluster.h>

namespace
{

QString nodeNameIn(const QString &fullPathName)
{
    return fullPathName.mid(fullPathName.lastIndexOf(QLatin1Char('|')) + 1);
}

} // namespace

influenceLookup::influenceLookup(const MObject &skinCluster)
{
    MDagPathArray influences;
    count_ = MFnSkinCluster(skinCluster).influenceObjects(influences);
    for (unsigned int i = 0; i < count_; ++i) {
        const QString path = textOf(influences[i].fullPathName());
        byPath_.insert(path, static_cast<int>(i));
        const QString name = nodeNameIn(path);
        if (!byName_.contains(name))
            byName_.insert(name, static_cast<int>(i));
    }
}

int influenceLookup::influenceOf(const MDagPath &joint, const QString &headerText) const
{
    if (joint.isValid())
        return byPath_.value(textOf(joint.fullPathName()), -1);
    return byName_.value(headerText, -1);
}
