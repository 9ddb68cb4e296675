// SPDX-License-Identifier: Apache-2.0
#include "model/shapeReader.h"

#include "model/vertexComponents.h"

#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MItGeometry.h>
#include <maya/MItMeshVertex.h>

namespace
{

// The vertices that the rows of a shape stand for, in row order.
QVector<int> loadedVertices(const MDagPath &shape, const MObject &component)
{
    QVector<int> vertices;
    if (component.isNull()) {
        for (MItGeometry point(shape); !point.isDone(); point.next())
            vertices.append(point.index());
        return vertices;
    }
    const MFnSingleIndexedComponent elements(component);
    const int count = elements.elementCount();
    vertices.reserve(count);
    for (int k = 0; k < count; ++k)
        vertices.append(elements.element(k));
    return vertices;
}

} // namespace

QVector<int> columnsOfInfluences(const MObject &skinCluster, const weightList &weights)
{
    MDagPathArray influences;
    MFnSkinCluster(skinCluster).influenceObjects(influences);
    QVector<int> columns;
    for (unsigned int i = 0; i < influences.length(); ++i)
        columns.append(weights.jointColumnOf(influences[i]));
    return columns;
}

shapeReader::shapeReader(const weightList &weights, int shape)
    : builder_(shape, weights.jointCount(), QVector<int>())
{
    if (!weights.isInScene(shape))
        return;
    const MDagPath &path = weights.shapePaths[shape];
    const MObject &component = weights.shapeComponents[shape];
    read(weights, shape, loadedVertices(path, component),
         component.isNull() ? allVertices(MItMeshVertex(path).count()) : component);
}

shapeReader::shapeReader(const weightList &weights, int shape, const QVector<int> &vertices)
    : builder_(shape, weights.jointCount(), QVector<int>())
{
    if (weights.isInScene(shape))
        read(weights, shape, vertices, componentOf(vertices));
}

void shapeReader::read(const weightList &weights, int shape, const QVector<int> &vertices,
                       const MObject &component)
{
    const QVector<int> columns = columnsOfInfluences(weights.skinClusters[shape], weights);
    const MStatus status =
        MFnSkinCluster(weights.skinClusters[shape])
            .getWeights(weights.shapePaths[shape], component, weights_, influenceCount_);
    if (!status || static_cast<int>(influenceCount_) != columns.size() ||
        weights_.length() != static_cast<unsigned int>(vertices.size()) * influenceCount_)
        return;
    vertices_ = vertices;
    builder_ = vertexRowBuilder(shape, weights.jointCount(), columns);
}

weightRow shapeReader::row(int k, double *sum)
{
    const double *first =
        influenceCount_ > 0 ? &weights_[static_cast<unsigned int>(k) * influenceCount_] : nullptr;
    return builder_.build(first, sum);
}
