// SPDX-License-Identifier: Apache-2.0
#include "model/shapeReader.h"

#include "model/vertexComponents.h"

#include <maya/MDagPathArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MItGeometry.h>
#include <maya/MItMeshVertex.h>

#include <new>

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

const int kBlockSize = 4096; // vertices

vertexRowBuilder builderFor(const weightList &weights, int shape)
{
    return vertexRowBuilder(shape, weights.jointCount(),
                            weights.isInScene(shape)
                                ? columnsOfInfluences(weights.skinClusters[shape], weights)
                                : QVector<int>());
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
    : skinCluster_(weights.skinClusters[shape]), path_(weights.shapePaths[shape]),
      builder_(builderFor(weights, shape))
{
    if (!weights.isInScene(shape))
        return;
    const MObject &component = weights.shapeComponents[shape];
    vertices_ = loadedVertices(path_, component);
    if (!read(component.isNull() ? allVertices(MItMeshVertex(path_).count()) : component, 0,
              vertexCount()))
        vertices_.clear();
}

// The last vertex alone tells whether the mesh still has all of them.
shapeReader::shapeReader(const weightList &weights, int shape, const QVector<int> &vertices)
    : skinCluster_(weights.skinClusters[shape]), path_(weights.shapePaths[shape]),
      vertices_(vertices), builder_(builderFor(weights, shape))
{
    const bool canRead = weights.isInScene(shape) && !vertices.isEmpty() &&
                         read(oneVertex(vertices.last()), vertexCount() - 1, vertexCount()) &&
                         readBlock(0);
    if (!canRead)
        vertices_.clear();
}

bool shapeReader::readBlock(int first)
{
    const int end = qMin(first + kBlockSize, vertexCount());
    return read(componentOf(vertices_.mid(first, end - first)), first, end);
}

bool shapeReader::read(const MObject &component, int first, int end)
{
    first_ = first;
    end_ = end;
    const MStatus status =
        MFnSkinCluster(skinCluster_).getWeights(path_, component, weights_, influenceCount_);
    if (status == MStatus::kInsufficientMemory)
        throw std::bad_alloc();
    return status && static_cast<int>(influenceCount_) == builder_.influenceCount() &&
           weights_.length() == static_cast<unsigned int>(end - first) * influenceCount_;
}

weightRow shapeReader::row(int k, double *sum)
{
    if (k < first_ || k >= end_)
        readBlock(k / kBlockSize * kBlockSize);
    const unsigned int place = static_cast<unsigned int>(k - first_) * influenceCount_;
    return builder_.build(influenceCount_ > 0 ? &weights_[place] : nullptr, sum);
}
