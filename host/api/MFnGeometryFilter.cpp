// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MFnGeometryFilter.h>
#include <maya/MObjectArray.h>

#include <algorithm>

#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "scene/history.h"
#include "scene/scene.h"

using host::answer;
using host::NodePtr;
using host::Plug;

namespace
{

Plug outputAt(const NodePtr &filter, int index)
{
    return filter->plug("outputGeometry").element(index);
}

// Existing elements of outputGeometry, by logical index.
std::vector<int> outputIndices(const NodePtr &filter)
{
    return host::elementIndices(filter->plug("outputGeometry"));
}

std::vector<NodePtr> outputShapes(const NodePtr &filter, int index)
{
    return host::shapesFedBy(outputAt(filter, index));
}

std::vector<NodePtr> inputShapes(const NodePtr &filter, int index)
{
    for (const NodePtr &node :
         host::geometryHistory(host::geometryInputFor(outputAt(filter, index))))
        if (node->isA("shape"))
            return {node};
    return {};
}

NodePtr filterFor(const MFnBase &functionSet, MStatus *status)
{
    const NodePtr node = host::nodeOf(functionSet);
    host::report(status, node ? MStatus::kSuccess : MStatus::kFailure);
    return node;
}

using ShapesAt = std::vector<NodePtr> (*)(const NodePtr &filter, int index);

// The shapes of all indices, each once.
MStatus listShapes(const MFnBase &functionSet, ShapesAt shapesAt, MObjectArray &objects)
{
    const NodePtr filter = host::nodeOf(functionSet);
    if (!filter)
        return MStatus::kFailure;
    std::vector<NodePtr> listed;
    MObjectArray shapes;
    for (const int index : outputIndices(filter)) {
        for (const NodePtr &shape : shapesAt(filter, index)) {
            if (std::find(listed.begin(), listed.end(), shape) != listed.end())
                continue;
            listed.push_back(shape);
            shapes.append(host::toObject(shape));
        }
    }
    objects = shapes;
    return MStatus::kSuccess;
}

// The first shape of an index.
MObject shapeAtIndex(const MFnBase &functionSet, ShapesAt shapesAt, unsigned int index,
                     MStatus *status)
{
    const NodePtr filter = filterFor(functionSet, status);
    if (!filter)
        return MObject();
    const std::vector<NodePtr> shapes = shapesAt(filter, static_cast<int>(index));
    return shapes.empty() ? answer(status, MStatus::kInvalidParameter, MObject())
                          : host::toObject(shapes.front());
}

bool isConnected(const NodePtr &filter, int index)
{
    return !filter->destinations(outputAt(filter, index)).empty();
}

} // namespace

DEFINE_FUNCTION_SET(MFnGeometryFilter, MFn::kGeometryFilt)

MStatus MFnGeometryFilter::getInputGeometry(MObjectArray &objects) const
{
    return listShapes(*this, inputShapes, objects);
}

MStatus MFnGeometryFilter::getOutputGeometry(MObjectArray &objects) const
{
    return listShapes(*this, outputShapes, objects);
}

MObject MFnGeometryFilter::inputShapeAtIndex(unsigned int index, MStatus *ReturnStatus) const
{
    return shapeAtIndex(*this, inputShapes, index, ReturnStatus);
}

MObject MFnGeometryFilter::outputShapeAtIndex(unsigned int index, MStatus *ReturnStatus) const
{
    return shapeAtIndex(*this, outputShapes, index, ReturnStatus);
}

unsigned int MFnGeometryFilter::indexForOutputShape(const MObject &shape,
                                                    MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    const NodePtr wanted = host::nodeOf(shape);
    for (const int index : outputIndices(filter)) {
        const std::vector<NodePtr> shapes = outputShapes(filter, index);
        if (wanted && std::find(shapes.begin(), shapes.end(), wanted) != shapes.end())
            return static_cast<unsigned int>(index);
    }
    return answer(ReturnStatus, MStatus::kInvalidParameter, 0u);
}

MStatus MFnGeometryFilter::getPathAtIndex(unsigned int index, MDagPath &path) const
{
    MStatus status;
    const MObject shape = outputShapeAtIndex(index, &status);
    return status ? MDagPath::getAPathTo(shape, path) : status;
}

unsigned int MFnGeometryFilter::numOutputConnections(MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    unsigned int count = 0;
    for (const int index : outputIndices(filter))
        count += isConnected(filter, index);
    return count;
}

unsigned int MFnGeometryFilter::indexForOutputConnection(unsigned int connectionIndex,
                                                         MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    for (const int index : outputIndices(filter)) {
        if (isConnected(filter, index) && connectionIndex-- == 0)
            return static_cast<unsigned int>(index);
    }
    return answer(ReturnStatus, MStatus::kInvalidParameter, 0u);
}

unsigned int MFnGeometryFilter::groupIdAtIndex(unsigned int index, MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    const Plug element = filter->plug("input").element(static_cast<int>(index));
    if (!filter->hasElement(element))
        return answer(ReturnStatus, MStatus::kInvalidParameter, 0u);
    const Plug groupId = element.child(filter->findAttribute("groupId"));
    return static_cast<unsigned int>(host::evaluateNumber(groupId));
}

// None since component tags replaced the sets.
MObject MFnGeometryFilter::deformerSet(MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return MObject();
    for (const host::Connection &connection : filter->destinations(filter->plug("message"))) {
        const Plug plug = connection.plug();
        if (plug.node->isA("objectSet") && plug.attribute->longName == "usedBy")
            return host::toObject(plug.node);
    }
    return answer(ReturnStatus, MStatus::kFailure, MObject());
}

float MFnGeometryFilter::envelope(MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    return filter ? static_cast<float>(host::evaluateNumber(filter->plug("envelope"))) : 0.0f;
}

MStatus MFnGeometryFilter::setEnvelope(float envelope)
{
    const NodePtr filter = host::nodeOf(*this);
    if (!filter)
        return MStatus::kFailure;
    return host::toMPlug(filter->plug("envelope")).setFloat(envelope);
}
