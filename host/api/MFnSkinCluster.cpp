// SPDX-License-Identifier: Apache-2.0
// Weights through the API: arguments are checked here, the rules are scene/skinCluster.h's. Nothing
// of it goes on the undo queue: that is the caller's business, who gets the old values for it.
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MIntArray.h>
#include <maya/MSelectionList.h>

#include <algorithm>

#include "api/componentBody.h"
#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "api/selectionBody.h"
#include "scene/scene.h"
#include "scene/skinCluster.h"

using host::answer;
using host::DagPath;
using host::NodePtr;
using host::SkinCluster;

namespace
{

// The skin cluster with the vertices of one call, checked.
struct Call {
    NodePtr node;
    std::vector<int> vertices;
    MStatus status;
};

// The one of the deformed shapes that the path leads to, or is the transform of; null if none.
NodePtr shapeAt(const DagPath &path, const std::vector<NodePtr> &shapes)
{
    for (const NodePtr &shape : shapes) {
        const auto &parents = shape->parents();
        if (path.node() == shape ||
            std::find(parents.begin(), parents.end(), path.node().get()) != parents.end())
            return shape;
    }
    return nullptr;
}

// Shapes that are not this cluster's are a kFailure; anything that is no list of its vertices is a
// kInvalidParameter.
Call beginCall(const MFnBase &functionSet, const MDagPath &path, const MObject &components)
{
    Call call;
    call.node = host::nodeOf(functionSet);
    const DagPath *shapePath = host::pathOf(path);
    const NodePtr shape =
        call.node && shapePath ? shapeAt(*shapePath, host::deformedShapes(*call.node)) : nullptr;
    host::Component component;
    if (!shape)
        call.status = MStatus::kFailure;
    else if (!host::toComponent(components, component) ||
             component.kind != host::ComponentKind::vertex)
        call.status = MStatus::kInvalidParameter;
    if (!call.status)
        return call;
    call.vertices = std::move(component.elements);
    // Rows of weights tell most, and are cheaper to count than vertices.
    const std::size_t end = call.vertices.empty() ? 0 : std::size_t(call.vertices.back()) + 1;
    const bool isInside =
        end <= call.node->weights()->vertexCount() || end <= host::vertexCount(*shape);
    if (!isInside || (!call.vertices.empty() && call.vertices.front() < 0))
        call.status = MStatus::kInvalidParameter;
    return call;
}

// Null for an empty array.
double *dataOf(MDoubleArray &array)
{
    return array.length() > 0 ? &array[0] : nullptr;
}

// Weights of some influences (physical indices), vertex by vertex.
MStatus readColumns(const Call &call, const std::vector<int> &columns, MDoubleArray &weights)
{
    if (!call.status)
        return call.status;
    const SkinCluster cluster(call.node);
    std::vector<std::uint32_t> logical;
    for (const int column : columns) {
        if (column < 0 || static_cast<std::size_t>(column) >= cluster.influences().size())
            return MStatus::kInvalidParameter;
        logical.push_back(cluster.influences()[static_cast<std::size_t>(column)].logicalIndex);
    }
    const host::skin::WeightStore &store = *call.node->weights();
    MDoubleArray found(static_cast<unsigned int>(call.vertices.size() * columns.size()));
    unsigned int place = 0;
    for (const int vertex : call.vertices)
        for (const std::uint32_t influence : logical)
            found[place++] = store.weight(static_cast<std::size_t>(vertex), influence);
    weights = found;
    return MStatus::kSuccess;
}

MStatus writeColumns(const Call &call, const std::vector<int> &columns,
                     const SkinCluster::Values &values, bool normalize, MDoubleArray *oldValues)
{
    if (!call.status)
        return call.status;
    const SkinCluster::PlaceForOld placeForOld = [oldValues](std::size_t count) {
        oldValues->setLength(static_cast<unsigned int>(count));
        return dataOf(*oldValues);
    };
    host::SkinWriteResult result;
    const MStatus status = host::quietly(MStatus::kInvalidParameter, [&] {
        const host::RecordingPause pause(*call.node->scene());
        result = SkinCluster(call.node).write(call.vertices, columns, values, normalize,
                                              oldValues ? placeForOld : nullptr);
    });
    if (!status)
        return status;
    if (result.couldNotSet)
        host::showWarning(host::skin::kWeightTotalWarning);
    if (result.locksPreventedMax)
        host::showWarning(host::skin::kMaxInfluencesWarning);
    return status;
}

std::vector<int> toVector(const MIntArray &array)
{
    std::vector<int> list(array.length());
    array.get(list.data());
    return list;
}

constexpr char kBlendWeights[] = "blendWeights"; // per vertex: classic linear 0, dual quaternion 1

} // namespace

DEFINE_FUNCTION_SET(MFnSkinCluster, MFn::kSkinClusterFilter)

MStatus MFnSkinCluster::getWeights(const MDagPath &path, const MObject &components,
                                   unsigned int influenceIndex, MDoubleArray &weights) const
{
    const int column = static_cast<int>(std::min(influenceIndex, ~0u >> 1));
    return readColumns(beginCall(*this, path, components), {column}, weights);
}

MStatus MFnSkinCluster::getWeights(const MDagPath &path, const MObject &components,
                                   MDoubleArray &weights, unsigned int &influenceCount) const
{
    const Call call = beginCall(*this, path, components);
    if (!call.status)
        return call.status;
    const SkinCluster cluster(call.node);
    influenceCount = static_cast<unsigned int>(cluster.influences().size());
    weights.setLength(static_cast<unsigned int>(call.vertices.size()) * influenceCount);
    cluster.read(call.vertices, dataOf(weights));
    return MStatus::kSuccess;
}

MStatus MFnSkinCluster::getWeights(const MDagPath &path, const MObject &components,
                                   MIntArray &influenceIndices, MDoubleArray &weights) const
{
    return readColumns(beginCall(*this, path, components), toVector(influenceIndices), weights);
}

MStatus MFnSkinCluster::setWeights(const MDagPath &path, const MObject &components,
                                   unsigned int jointIndex, double value, bool normalize,
                                   MDoubleArray *oldValues)
{
    const int column = static_cast<int>(std::min(jointIndex, ~0u >> 1));
    return writeColumns(beginCall(*this, path, components), {column}, {&value, 1}, normalize,
                        oldValues);
}

MStatus MFnSkinCluster::setWeights(const MDagPath &path, const MObject &components,
                                   MIntArray &influenceIndices, MDoubleArray &values,
                                   bool normalize, MDoubleArray *oldValues)
{
    MDoubleArray copy;
    if (oldValues == &values)
        copy = values;
    MDoubleArray &read = oldValues == &values ? copy : values;
    return writeColumns(beginCall(*this, path, components), toVector(influenceIndices),
                        {dataOf(read), read.length()}, normalize, oldValues);
}

// Vertices with a weight for the influence, and these weights.
MStatus MFnSkinCluster::getPointsAffectedByInfluence(const MDagPath &path, MSelectionList &result,
                                                     MDoubleArray &weights)
{
    const NodePtr node = host::nodeOf(*this);
    const DagPath *influencePath = host::pathOf(path);
    const NodePtr shape = node ? host::deformedShape(*node) : nullptr;
    if (!shape)
        return MStatus::kFailure;
    const SkinCluster cluster(node);
    const int column = influencePath ? cluster.indexOf(*influencePath->node()) : -1;
    if (column < 0)
        return MStatus::kInvalidParameter;
    const std::uint32_t influence =
        cluster.influences()[static_cast<std::size_t>(column)].logicalIndex;
    const host::skin::WeightStore &store = *node->weights();
    host::SelectionItem item;
    item.path = DagPath::first(shape);
    item.node = shape;
    item.component.emplace();
    weights.clear();
    for (std::size_t v = store.nextRow(0); v < store.vertexCount(); v = store.nextRow(v + 1)) {
        const double weight = store.weight(v, influence);
        if (weight == 0.0)
            continue;
        item.component->elements.push_back(static_cast<int>(v));
        weights.append(weight);
    }
    result.clear();
    if (!item.component->elements.empty())
        host::setItems(result, {item});
    return MStatus::kSuccess;
}

unsigned int MFnSkinCluster::indexForInfluenceObject(const MDagPath &path,
                                                     MStatus *ReturnStatus) const
{
    const NodePtr node = host::nodeOf(*this);
    const DagPath *influencePath = host::pathOf(path);
    if (!node)
        return answer(ReturnStatus, MStatus::kFailure, ~0u);
    const SkinCluster cluster(node);
    const int column = influencePath ? cluster.indexOf(*influencePath->node()) : -1;
    if (column < 0)
        return answer(ReturnStatus, MStatus::kInvalidParameter, ~0u);
    return answer(ReturnStatus, MStatus::kSuccess,
                  cluster.influences()[static_cast<std::size_t>(column)].logicalIndex);
}

unsigned int MFnSkinCluster::influenceObjects(MDagPathArray &paths, MStatus *ReturnStatus) const
{
    const NodePtr node = host::nodeOf(*this);
    host::report(ReturnStatus, node ? MStatus::kSuccess : MStatus::kFailure);
    MDagPathArray found;
    if (node) {
        const SkinCluster cluster(node);
        for (const host::Influence &influence : cluster.influences())
            found.append(host::toMDagPath(influence.path));
    }
    paths = found;
    return paths.length();
}

MStatus MFnSkinCluster::getBlendWeights(const MDagPath &path, const MObject &components,
                                        MDoubleArray &weights) const
{
    const Call call = beginCall(*this, path, components);
    if (!call.status)
        return call.status;
    const host::Plug array = call.node->plug(kBlendWeights);
    weights.clear();
    for (const int vertex : call.vertices)
        weights.append(host::evaluateNumber(array.element(vertex)));
    return MStatus::kSuccess;
}

MStatus MFnSkinCluster::setBlendWeights(const MDagPath &path, const MObject &components,
                                        const MDoubleArray &weights)
{
    const Call call = beginCall(*this, path, components);
    if (!call.status)
        return call.status;
    if (weights.length() != call.vertices.size())
        return MStatus::kInvalidParameter;
    return host::quietly(MStatus::kFailure, [&] {
        const host::RecordingPause pause(*call.node->scene());
        const host::Plug array = call.node->plug(kBlendWeights);
        for (unsigned int i = 0; i < weights.length(); ++i)
            call.node->scene()->setValue(array.element(call.vertices[i]), weights[i]);
    });
}
