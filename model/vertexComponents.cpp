// SPDX-License-Identifier: Apache-2.0
#include "model/vertexComponents.h"

#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MIntArray.h>

MObject oneVertex(int vertex)
{
    return componentOf(QVector<int>(1, vertex));
}

MObject componentOf(const QVector<int> &vertices)
{
    MIntArray elements;
    for (int i = 0; i < vertices.size(); ++i)
        elements.append(vertices.at(i));
    MFnSingleIndexedComponent component;
    const MObject object = component.create(MFn::kMeshVertComponent);
    component.addElements(elements);
    return object;
}

MObject allVertices(int count)
{
    MFnSingleIndexedComponent component;
    const MObject object = component.create(MFn::kMeshVertComponent);
    component.setCompleteData(count);
    return object;
}

MObject loadedVerticesOf(const weightList &weights, int shape)
{
    const MObject &loaded = weights.shapeComponents[static_cast<unsigned int>(shape)];
    if (!loaded.isNull())
        return loaded;
    return allVertices(weights.endOfVertexRows(shape) - weights.firstVertexRow(shape));
}
