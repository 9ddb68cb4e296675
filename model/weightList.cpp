// SPDX-License-Identifier: Apache-2.0
#include "model/weightList.h"

#include "model/mayaText.h"

#include <maya/MColor.h>
#include <maya/MFnDagNode.h>
#include <maya/MString.h>

bool weightList::isInScene(int shape) const
{
    return skinClusterHandles.at(shape).isValid() &&
           shapePaths[static_cast<unsigned int>(shape)].isValid();
}

bool weightList::isSceneGone() const
{
    for (int shape = 0; shape < shapeCount(); ++shape) {
        if (skinClusterHandles.at(shape).isAlive())
            return false;
    }
    return shapeCount() > 0;
}

int weightList::endOfVertexRows(int shape) const
{
    const int next = shape + 1;
    return static_cast<int>(next < shapeRows.size() ? shapeRows.at(next) : rows.size());
}

QVector<int> weightList::firstWithSkinCluster() const
{
    QVector<int> first;
    for (unsigned int shape = 0; shape < skinClusters.length(); ++shape) {
        unsigned int same = 0;
        while (skinClusters[same] != skinClusters[shape])
            ++same;
        first.append(static_cast<int>(same));
    }
    return first;
}

void weightList::addJointColumn(const MDagPath &influence)
{
    const QString path = textOf(influence.fullPathName());
    if (jointColumnByPath.contains(path))
        return;
    jointColumnByPath.insert(path, jointCount());
    jointPaths.append(influence);
}

int weightList::jointColumnOf(const MDagPath &influence) const
{
    return jointColumnOf(textOf(influence.fullPathName()));
}

int weightList::jointColumnOf(const QString &fullPathName) const
{
    return jointColumnByPath.value(fullPathName, -1);
}

int weightList::findShapeIndex(const MDagPath &shape) const
{
    const MObject node = shape.node();
    for (unsigned int s = 0; s < shapePaths.length(); ++s) {
        if (shapePaths[s].node() == node)
            return static_cast<int>(s);
    }
    return -1;
}

void weightList::readJointHeaders()
{
    jointNames.clear();
    jointColors.clear();
    for (unsigned int column = 0; column < jointPaths.length(); ++column) {
        const MFnDagNode joint(jointPaths[column]);
        const MColor color = joint.dormantColor();
        jointNames.append(textOf(joint.name()));
        jointColors.append(QColor::fromRgbF(
            qBound(0.0f, color.r, 1.0f), qBound(0.0f, color.g, 1.0f), qBound(0.0f, color.b, 1.0f)));
    }
}
