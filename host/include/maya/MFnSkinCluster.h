// SPDX-License-Identifier: Apache-2.0
// Weights of a skin cluster. Stands in for Maya's header of this name; declarations only. Every
// influence index is physical (a position in influenceObjects), but for the result of
// indexForInfluenceObject, which is logical (the element of `matrix`). Weights come vertex by
// vertex.
#pragma once

#include <maya/MFnGeometryFilter.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYAANIM_EXPORT MFnSkinCluster : public MFnGeometryFilter
{
    declareMFn(MFnSkinCluster, MFnGeometryFilter);

public:
    MStatus getWeights(const MDagPath &path, const MObject &components, unsigned int influenceIndex,
                       MDoubleArray &weights) const;
    MStatus getWeights(const MDagPath &path, const MObject &components, MDoubleArray &weights,
                       unsigned int &influenceCount) const;
    MStatus getWeights(const MDagPath &path, const MObject &components, MIntArray &influenceIndices,
                       MDoubleArray &weights) const;
    MStatus setWeights(const MDagPath &path, const MObject &components, unsigned int jointIndex,
                       double value, bool normalize = true, MDoubleArray *oldValues = nullptr);
    MStatus setWeights(const MDagPath &path, const MObject &components, MIntArray &influenceIndices,
                       MDoubleArray &values, bool normalize = true,
                       MDoubleArray *oldValues = nullptr);
    MStatus getPointsAffectedByInfluence(const MDagPath &path, MSelectionList &result,
                                         MDoubleArray &weights);
    unsigned int indexForInfluenceObject(const MDagPath &path,
                                         MStatus *ReturnStatus = nullptr) const;
    unsigned int influenceObjects(MDagPathArray &paths, MStatus *ReturnStatus = nullptr) const;
    MStatus getBlendWeights(const MDagPath &path, const MObject &components,
                            MDoubleArray &weights) const;
    MStatus setBlendWeights(const MDagPath &path, const MObject &components,
                            const MDoubleArray &weights);
    declareMFnConstConstructor(MFnSkinCluster, MFnGeometryFilter);
};

MAYA_API_NAMESPACE_EXIT
