// SPDX-License-Identifier: Apache-2.0
#include "model/selectedShapes.h"

#include <maya/MFn.h>
#include <maya/MItSelectionList.h>

namespace
{

// A transform stands for its first shape, hidden or not, as Maya's extendToShape picks it.
bool extendToShape(MDagPath &path)
{
    if (path.hasFn(MFn::kTransform))
        return path.extendToShape();
    return path.isValid();
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
            extendToShape(shape.path))
            shapes.append(shape);
    }
    return shapes;
}
