// SPDX-License-Identifier: Apache-2.0
#include "commands/vertexComponents.h"

#include <maya/MFnSingleIndexedComponent.h>

MObject oneVertex(int vertex)
{
    MFnSingleIndexedComponent component;
    const MObject object = component.create(MFn::kMeshVertComponent);
    component.addElement(vertex);
    return object;
}

MObject loadedVerticesOf(const weightList &weights, int shape)
{
    const MObject &loaded = weights.shapeComponents[static_cast<unsigned int>(shape)];
    if (!loaded.isNull())
        return loaded;
    MFnSingleIndexedComponent component;
    const MObject object = component.create(MFn::kMeshVertComponent);
    component.setCompleteData(weights.endOfVertexRows(shape) - weights.firstVertexRow(shape));
    return object;
}
