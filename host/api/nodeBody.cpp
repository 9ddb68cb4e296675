// SPDX-License-Identifier: Apache-2.0
#include "api/nodeBody.h"

#include <algorithm>
#include <set>

#include <maya/MFnBase.h>

namespace host
{

namespace
{

struct TypeKind {
    const char *type;
    MFn::Type kind;
};

// Node types that have a kind of their own; others have that of the type they derive from.
constexpr TypeKind kTypeKinds[] = {
    {"node", MFn::kDependencyNode},
    {"dagNode", MFn::kDagNode},
    {"world", MFn::kWorld},
    {"transform", MFn::kTransform},
    {"joint", MFn::kJoint},
    {"ikHandle", MFn::kIkHandle},
    {"ikEffector", MFn::kIkEffector},
    {"shape", MFn::kShape},
    {"mesh", MFn::kMesh},
    {"nurbsCurve", MFn::kNurbsCurve},
    {"nurbsSurface", MFn::kNurbsSurface},
    {"lattice", MFn::kLattice},
    {"subdiv", MFn::kSubdiv},
    {"camera", MFn::kCamera},
    {"locator", MFn::kLocator},
    {"ambientLight", MFn::kAmbientLight},
    {"directionalLight", MFn::kDirectionalLight},
    {"pointLight", MFn::kPointLight},
    {"spotLight", MFn::kSpotLight},
    {"areaLight", MFn::kAreaLight},
    {"objectSet", MFn::kSet},
    {"shadingEngine", MFn::kShadingEngine},
    {"groupId", MFn::kGroupId},
    {"groupParts", MFn::kGroupParts},
    {"geometryFilter", MFn::kGeometryFilt},
    {"tweak", MFn::kTweak},
    {"skinCluster", MFn::kSkinClusterFilter},
    {"blendShape", MFn::kBlendShape},
    {"dagPose", MFn::kDagPose},
    {"partition", MFn::kPartition},
    {"displayLayer", MFn::kDisplayLayer},
    {"displayLayerManager", MFn::kDisplayLayerManager},
    {"renderLayer", MFn::kRenderLayer},
    {"renderLayerManager", MFn::kRenderLayerManager},
    {"lambert", MFn::kLambert},
    {"blinn", MFn::kBlinn},
    {"phong", MFn::kPhong},
    {"file", MFn::kFileTexture},
    {"place2dTexture", MFn::kPlace2dTexture},
    {"materialInfo", MFn::kMaterialInfo},
    {"time", MFn::kTime},
    {"script", MFn::kScript},
    {"lightLinker", MFn::kLightLink},
    {"defaultLightList", MFn::kDefaultLightList},
    {"defaultShaderList", MFn::kShaderList},
    {"defaultTextureList", MFn::kTextureList},
    {"postProcessList", MFn::kPostProcessList},
    {"defaultRenderUtilityList", MFn::kRenderUtilityList},
    {"renderGlobals", MFn::kRenderGlobals},
    {"renderQuality", MFn::kRenderQuality},
    {"resolution", MFn::kResolution},
    {"hardwareRenderGlobals", MFn::kHardwareRenderGlobals},
    {"hyperGraphInfo", MFn::kHyperGraphInfo},
    {"hyperLayout", MFn::kHyperLayout},
    {"reference", MFn::kReference},
    {"polyCube", MFn::kPolyCube},
    {"polySphere", MFn::kPolySphere},
    {"polyCylinder", MFn::kPolyCylinder},
    {"polyPlane", MFn::kPolyMesh},
    {"transformGeometry", MFn::kTransformGeometry},
    {"multiplyDivide", MFn::kMultiplyDivide},
    {"plusMinusAverage", MFn::kPlusMinusAverage},
    {"reverse", MFn::kReverse},
    {"unitConversion", MFn::kUnitConversion},
};

const TypeKind *kindOfName(const std::string &type)
{
    const auto found = std::find_if(std::begin(kTypeKinds), std::end(kTypeKinds),
                                    [&](const TypeKind &row) { return type == row.type; });
    return found == std::end(kTypeKinds) ? nullptr : found;
}

} // namespace

std::vector<MFn::Type> kindsOf(const NodeType &type)
{
    std::vector<MFn::Type> kinds;
    for (const NodeType *step = &type; step; step = step->base)
        if (const TypeKind *row = kindOfName(step->name))
            kinds.push_back(row->kind);
    // A type that only a file brought is what Maya calls an unknown node.
    if (!type.isKnown && !kindOfName(type.name))
        kinds.insert(kinds.begin(), type.isA("dagNode") ? MFn::kUnknownDag : MFn::kUnknown);
    kinds.push_back(MFn::kNamedObject);
    kinds.push_back(MFn::kBase);
    return kinds;
}

NodeBody::NodeBody(const NodePtr &node)
    : node_(node), identity_(node.get()), kinds_(kindsOf(node->type()))
{
}

bool NodeBody::hasFn(MFn::Type type) const
{
    return std::find(kinds_.begin(), kinds_.end(), type) != kinds_.end();
}

bool NodeBody::sameAs(const ObjectBody &other) const
{
    const auto *body = dynamic_cast<const NodeBody *>(&other);
    return body && !node_.owner_before(body->node_) && !body->node_.owner_before(node_);
}

namespace
{

std::vector<int> computedIndices(const Plug &array)
{
    std::set<int> indices;
    if (array.attribute->isPerInstance && array.node->isDag())
        for (std::size_t i = 0; i < DagPath::all(array.node).size(); ++i)
            indices.insert(static_cast<int>(i));
    for (const auto &destination : array.node->allDestinations()) {
        const Plug plug = array.node->plugOf(destination.first);
        if (plug.attribute == array.attribute && plug.isElement() && plug.array() == array)
            indices.insert(plug.ownIndex());
    }
    return std::vector<int>(indices.begin(), indices.end());
}

} // namespace

std::vector<int> elementIndices(const Plug &wholeArray)
{
    return wholeArray.attribute->isComputed ? computedIndices(wholeArray)
                                            : wholeArray.node->elementIndices(wholeArray);
}

int PlugBody::logicalIndex(unsigned physical) const
{
    const bool isFresh =
        isOrderKnown_ && orderRevision_ == plug.node->dataRevision() && !plug.attribute->isComputed;
    if (!isFresh) {
        order_ = elementIndices(plug);
        orderRevision_ = plug.node->dataRevision();
        isOrderKnown_ = true;
    }
    return physical < order_.size() ? order_[physical] : kNoIndex;
}

MObject toObject(const NodePtr &node)
{
    return node ? makeObject(std::make_shared<NodeBody>(node)) : MObject();
}

MDagPath toMDagPath(DagPath path)
{
    MDagPath result;
    if (!path.isNull())
        ApiAccess::body(result) = std::make_shared<const PathBody>(std::move(path));
    return result;
}

MPlug toMPlug(Plug plug, bool isNetworked)
{
    MPlug result;
    if (!plug.isNull())
        ApiAccess::body(result) = std::make_shared<const PlugBody>(std::move(plug), isNetworked);
    return result;
}

namespace
{

template <class Handle>
NodePtr livingNode(const Handle &handle)
{
    const std::shared_ptr<NodeBody> body = bodyOf<NodeBody>(handle);
    NodePtr node = body ? body->node() : nullptr;
    return node && node->isInScene() ? node : nullptr;
}

} // namespace

NodePtr nodeOf(const MObject &object)
{
    return livingNode(object);
}
NodePtr nodeOf(const MFnBase &functionSet)
{
    return livingNode(functionSet);
}

const DagPath *pathOf(const MDagPath &path)
{
    const auto &body = ApiAccess::body(path);
    return body && body->path.isValid() ? &body->path : nullptr;
}

const Plug *plugOf(const MPlug &plug)
{
    const auto &body = ApiAccess::body(plug);
    return body && body->plug.node->isInScene() ? &body->plug : nullptr;
}

} // namespace host
