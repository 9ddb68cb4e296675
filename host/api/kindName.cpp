// SPDX-License-Identifier: Apache-2.0
#include "api/objectBody.h"

namespace
{

struct Kind {
    MFn::Type type;
    const char *name;
};

#define KIND(name)                                                                                 \
    {                                                                                              \
        MFn::name, #name                                                                           \
    }
constexpr Kind kKinds[] = {
    KIND(kInvalid),
    KIND(kBase),
    KIND(kNamedObject),
    KIND(kModel),
    KIND(kDependencyNode),
    KIND(kDagNode),
    KIND(kTransform),
    KIND(kJoint),
    KIND(kShape),
    KIND(kCamera),
    KIND(kMesh),
    KIND(kShadingEngine),
    KIND(kGeometryFilt),
    KIND(kTweak),
    KIND(kGroupId),
    KIND(kGroupParts),
    KIND(kSet),
    KIND(kComponent),
    KIND(kMeshComponent),
    KIND(kMeshEdgeComponent),
    KIND(kMeshPolygonComponent),
    KIND(kMeshVertComponent),
    KIND(kMeshFaceVertComponent),
    KIND(kDagSelectionItem),
    KIND(kAttribute),
    KIND(kNumericAttribute),
    KIND(kTypedAttribute),
    KIND(kCompoundAttribute),
    KIND(kPlugin),
    KIND(kStringData),
    KIND(kStringArrayData),
    KIND(kSkinClusterFilter),
    KIND(kSingleIndexedComponent),
    KIND(kWorld),
    KIND(kUnknown),
    KIND(kUnknownDag),
    KIND(kUnknownTransform),
    KIND(kPluginDependNode),
    KIND(kDoubleIndexedComponent),
    KIND(kTripleIndexedComponent),
    KIND(kMeshMapComponent),
    KIND(kCurveCVComponent),
    KIND(kSurfaceCVComponent),
    KIND(kLatticeComponent),
    KIND(kEntireObject),
    KIND(kEnumAttribute),
    KIND(kMessageAttribute),
    KIND(kMatrixAttribute),
    KIND(kUnitAttribute),
    KIND(kGenericAttribute),
    KIND(kData),
    KIND(kNumericData),
    KIND(kMatrixData),
    KIND(kDoubleArrayData),
    KIND(kIntArrayData),
    KIND(kPointArrayData),
    KIND(kVectorArrayData),
    KIND(kComponentListData),
    KIND(kMeshData),
    KIND(kPluginData),
    KIND(kNurbsSurface),
    KIND(kNurbsCurve),
    KIND(kLattice),
    KIND(kSubdiv),
    KIND(kLocator),
    KIND(kLight),
    KIND(kAmbientLight),
    KIND(kDirectionalLight),
    KIND(kPointLight),
    KIND(kSpotLight),
    KIND(kAreaLight),
    KIND(kIkHandle),
    KIND(kIkEffector),
    KIND(kIkSolver),
    KIND(kConstraint),
    KIND(kAnimCurve),
    KIND(kBlendShape),
    KIND(kDagPose),
    KIND(kDagContainer),
    KIND(kContainer),
    KIND(kPartition),
    KIND(kDisplayLayer),
    KIND(kDisplayLayerManager),
    KIND(kRenderLayer),
    KIND(kRenderLayerManager),
    KIND(kLambert),
    KIND(kBlinn),
    KIND(kPhong),
    KIND(kFileTexture),
    KIND(kPlace2dTexture),
    KIND(kMaterialInfo),
    KIND(kTime),
    KIND(kScript),
    KIND(kLightLink),
    KIND(kDefaultLightList),
    KIND(kShaderList),
    KIND(kTextureList),
    KIND(kPostProcessList),
    KIND(kRenderUtilityList),
    KIND(kRenderGlobals),
    KIND(kRenderQuality),
    KIND(kResolution),
    KIND(kHardwareRenderGlobals),
    KIND(kHyperGraphInfo),
    KIND(kHyperLayout),
    KIND(kReference),
    KIND(kPolyCube),
    KIND(kPolySphere),
    KIND(kPolyCylinder),
    KIND(kPolyMesh),
    KIND(kTransformGeometry),
    KIND(kMultiplyDivide),
    KIND(kPlusMinusAverage),
    KIND(kReverse),
    KIND(kUnitConversion),
    KIND(kControllerTag),
};
#undef KIND

} // namespace

const char *host::kindName(MFn::Type type)
{
    for (const Kind &kind : kKinds)
        if (kind.type == type)
            return kind.name;
    return "kInvalid";
}
