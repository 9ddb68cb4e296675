// SPDX-License-Identifier: Apache-2.0
#include "commands/rowWrites.h"

#include "model/mayaText.h"
#include "model/messages.h"
#include "model/smoothingScript.h"

#include <maya/MGlobal.h>

namespace
{

// Of each shape that is in the edit the transform, since the paint tool is set up as by a user who
// picks vertices.
QStringList namesOfTransforms(const weightList &weights)
{
    QStringList names;
    for (int shape = 0; shape < weights.shapeCount(); ++shape) {
        MDagPath path = weights.shapePaths[static_cast<unsigned int>(shape)];
        const bool isThere = weights.isInScene(shape) && path.pop();
        names.append(isThere ? textOf(path.partialPathName()) : QString());
    }
    return names;
}

// Joints of one name are common (a left and a right "hand"), so a name that would mean two is
// preceded by those above.
QString nameOfJoint(const weightList &weights, int column)
{
    const MDagPath &path = weights.jointPaths[static_cast<unsigned int>(column)];
    return path.isValid() ? textOf(path.partialPathName()) : weights.jointNames.at(column);
}

bool isInfluenceOfEach(const preparedEdit &edit, const editedShapes &shapes, int column)
{
    for (int place = 0; place < edit.shapes.size(); ++place) {
        if (shapes.influenceOf(place, column) < 0)
            return false;
    }
    return true;
}

} // namespace

preparation preparePaintSmoothing(const editSource &source, preparedEdit &edit)
{
    const editHandOver &order = source.handOver;
    const weightList &weights = source.weights;
    editedShapes shapes(source, edit);
    const preparation prepared = appendWritesToRows(order.paintedRows, source, shapes);
    if (prepared != preparation::ready || edit.writes.isEmpty())
        return prepared; // its writer says that there is nothing
    if (!isInfluenceOfEach(edit, shapes, order.operationColumn)) {
        MGlobal::displayInfo(kNoJointIndex);
        return preparation::failed;
    }
    const QString vertices =
        vertexWords(order.paintedRows, weights.rows, weights.rowNames, namesOfTransforms(weights));
    edit.scripts.append(
        mayaTextOf(paintSetUpScript(vertices, nameOfJoint(weights, order.operationColumn))));
    edit.scripts.append(mayaTextOf(paintFloodScript(textOf(order.paintOpacity))));
    edit.heldJoints = lockedJoints(source);
    return preparation::ready;
}
