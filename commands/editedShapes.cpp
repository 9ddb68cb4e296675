// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"

#include "model/vertexComponents.h"

#include <algorithm>

#include <maya/MFnDependencyNode.h>
#include <maya/MFnMesh.h>
#include <maya/MPlug.h>

namespace
{

bool distributesByNeighbours(const MObject &skinCluster)
{
    int distribution = 0;
    MFnDependencyNode(skinCluster).findPlug("weightDistribution", true).getValue(distribution);
    return distribution != 0;
}

} // namespace

editedShapes::editedShapes(const editSource &source, preparedEdit &edit)
    : source_(source), edit_(edit), places_(source.weights.shapeCount(), -1),
      firstWithSkinCluster_(source.weights.firstWithSkinCluster()),
      asked_(static_cast<size_t>(source.weights.shapeCount()))
{
}

int editedShapes::enter(int shape)
{
    const weightList &weights = source_.weights;
    if (shape < 0 || shape >= places_.size())
        return -1;
    if (places_.at(shape) >= 0)
        return places_.at(shape);
    if (!weights.isInScene(shape))
        return -1;
    const unsigned int s = static_cast<unsigned int>(shape);
    lookups_.push_back(influenceLookup(weights.skinClusters[s]));
    readNeighbours_.append(distributesByNeighbours(weights.skinClusters[s]));
    editedShape entered;
    entered.skinCluster = weights.skinClusterHandles.at(shape);
    entered.path = weights.shapePaths[s];
    entered.influenceCount = lookups_.back().count();
    places_[shape] = static_cast<int>(edit_.shapes.size());
    edit_.shapes.append(entered);
    return places_.at(shape);
}

bool editedShapes::isNew(int shape, int vertex)
{
    QVector<bool> &asked = asked_[static_cast<size_t>(firstWithSkinCluster_.at(shape))];
    if (asked.size() <= vertex)
        asked.resize(vertex + 1);
    const bool wasAsked = asked.at(vertex);
    asked[vertex] = true;
    return !wasAsked;
}

QVector<int> editedShapes::newRows(int shape)
{
    const weightList &weights = source_.weights;
    QVector<int> rows;
    for (int row = weights.firstVertexRow(shape); row < weights.endOfVertexRows(shape); ++row) {
        if (isNew(shape, weights.rowNames.vertex(row)))
            rows.append(row);
    }
    return rows;
}

int editedShapes::influenceOf(int place, int column) const
{
    const weightList &weights = source_.weights;
    if (column < 0 || column >= weights.jointCount())
        return -1;
    return lookups_[static_cast<size_t>(place)].influenceOf(
        weights.jointPaths[static_cast<unsigned int>(column)], weights.jointNames.value(column));
}

bool editedShapes::readsNeighbours(int place) const
{
    return readNeighbours_.at(place);
}

weightWrite &editedShapes::appendWrite(int place, const QVector<int> &vertices)
{
    weightWrite &write = append(place, componentOf(vertices),
                                *std::max_element(vertices.constBegin(), vertices.constEnd()));
    write.vertices = vertices;
    return write;
}

weightWrite &editedShapes::appendWriteToRows(int place, int shape, const QVector<int> &rows)
{
    const weightList &weights = source_.weights;
    if (rows.size() == weights.vertexCount(shape))
        return append(place, loadedVerticesOf(weights, shape),
                      weights.rowNames.vertex(rows.last()));
    QVector<int> vertices;
    for (int i = 0; i < rows.size(); ++i)
        vertices.append(weights.rowNames.vertex(rows.at(i)));
    return appendWrite(place, vertices);
}

weightWrite &editedShapes::appendWriteToMesh(int place)
{
    const int count = MFnMesh(edit_.shapes.at(place).path).numVertices();
    return append(place, allVertices(count), count - 1);
}

weightWrite &editedShapes::append(int place, const MObject &component, int highestVertex)
{
    editedShape &shape = edit_.shapes[place];
    shape.highestVertex = qMax(shape.highestVertex, highestVertex);
    edit_.writes.append(weightWrite());
    edit_.writes.last().shape = place;
    edit_.writes.last().component = component;
    return edit_.writes.last();
}
