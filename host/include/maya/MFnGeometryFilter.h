// SPDX-License-Identifier: Apache-2.0
// A deformer: which shapes go in and come out, and its envelope.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYAANIM_EXPORT MFnGeometryFilter : public MFnDependencyNode
{
    declareMFn(MFnGeometryFilter, MFnDependencyNode);

public:
    MStatus getInputGeometry(MObjectArray &objects) const;
    MStatus getOutputGeometry(MObjectArray &objects) const;
    MObject inputShapeAtIndex(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    MObject outputShapeAtIndex(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    unsigned int indexForOutputShape(const MObject &shape, MStatus *ReturnStatus = nullptr) const;
    MStatus getPathAtIndex(unsigned int index, MDagPath &path) const;
    unsigned int numOutputConnections(MStatus *ReturnStatus = nullptr) const;
    unsigned int indexForOutputConnection(unsigned int connectionIndex,
                                          MStatus *ReturnStatus = nullptr) const;
    unsigned int groupIdAtIndex(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    MObject deformerSet(MStatus *ReturnStatus = nullptr) const;
    float envelope(MStatus *ReturnStatus = nullptr) const;
    MStatus setEnvelope(float envelope);
    declareMFnConstConstructor(MFnGeometryFilter, MFnDependencyNode);
};

MAYA_API_NAMESPACE_EXIT
