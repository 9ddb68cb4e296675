// SPDX-License-Identifier: Apache-2.0
#include "model/selectedShapes.h"

#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MItSelectionList.h>

namespace
{

// Extends the path of a transform to its first shape that is seen. Where a bound mesh comes from a
// referenced file, the shape before deformation, which is hidden, stands first.
bool extendToVisibleShape(MDagPath &path)
{
    if (!path.hasFn(MFn::kTransform))
        return path.isValid();
    unsigned int count = 0;
    path.numberOfShapesDirectlyBelow(count);
    for (unsigned int i = 0; i < count; ++i) {
        MDagPath shape(path);
        shape.extendToShapeDirectlyBelow(i);
        if (!MFnDagNode(shape).isIntermediateObject()) {
            path = shape;
            return true;
        }
    }
    return false;
}

bool canBeLoaded(const MObject &component)
{
    return component.isNull() || component.apiType() == MFn::kMeshVertComponent;
}

} // namespace

QVector<selectedShape> selectedShapes(const MSelectionList &selection)
{
    QVector<selectedShape> shapes;
    for (MItSelectionList item(selection); !item.isDone(); item.next()) {
        selectedShape shape;
        if (item.getDagPath(shape.path, shape.component) && canBeLoaded(shape.component) &&
            extendToVisibleShape(shape.path))
            shapes.append(shape);
    }
    return shapes;
}
