// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MFnGeometryFilter.h>
#include <maya/MObjectArray.h>

#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "scene/history.h"
#include "scene/scene.h"

using host::answer;
using host::NodePtr;
using host::Plug;

namespace
{

// Deformers between a deformer and its shape, at most; a longer chain is a loop.
constexpr int kMaxChainLength = 1000;

Plug outputOf(const NodePtr &filter)
{
    return filter->plug("outputGeometry");
}

// The next geometry output downstream of a plug that is fed by a deformer.
Plug outputBehind(const Plug &input)
{
    const NodePtr &node = input.node;
    if (node->isA("geometryFilter") && input.indices[0] != host::kNoIndex)
        return outputOf(node).element(input.indices[0]);
    return node->findAttribute("outputGeometry") ? outputOf(node) : Plug();
}

// The shape at the end of the deformers behind `output`; null if there is none.
NodePtr shapeBehind(Plug output)
{
    for (int step = 0; step < kMaxChainLength && !output.isNull(); ++step) {
        const std::vector<host::Connection> destinations = output.node->destinations(output);
        output = Plug();
        for (const host::Connection &connection : destinations) {
            const Plug input = connection.plug();
            if (input.node->isA("shape"))
                return input.node;
            if (output.isNull())
                output = outputBehind(input);
        }
    }
    return nullptr;
}

// Existing elements of outputGeometry, by logical index.
std::vector<int> outputIndices(const NodePtr &filter)
{
    return host::elementIndices(outputOf(filter));
}

NodePtr outputShape(const NodePtr &filter, int index)
{
    return shapeBehind(outputOf(filter).element(index));
}

NodePtr inputShape(const NodePtr &filter, int index)
{
    const Plug input =
        filter->plug("input").element(index).child(filter->findAttribute("inputGeometry"));
    for (const NodePtr &node : host::geometryHistory(input))
        if (node->isA("shape"))
            return node;
    return nullptr;
}

NodePtr filterFor(const MFnBase &functionSet, MStatus *status)
{
    const NodePtr node = host::nodeOf(functionSet);
    host::report(status, node ? MStatus::kSuccess : MStatus::kFailure);
    return node;
}

MStatus listShapes(const MFnBase &functionSet, NodePtr (*shapeAt)(const NodePtr &, int),
                   MObjectArray &objects)
{
    const NodePtr filter = host::nodeOf(functionSet);
    if (!filter)
        return MStatus::kFailure;
    MObjectArray shapes;
    for (const int index : outputIndices(filter))
        if (const NodePtr shape = shapeAt(filter, index))
            shapes.append(host::toObject(shape));
    objects = shapes;
    return MStatus::kSuccess;
}

MObject shapeObject(const NodePtr &shape, MStatus *status)
{
    return answer(status, shape ? MStatus::kSuccess : MStatus::kInvalidParameter,
                  host::toObject(shape));
}

} // namespace

DEFINE_FUNCTION_SET(MFnGeometryFilter, MFn::kGeometryFilt)

MStatus MFnGeometryFilter::getInputGeometry(MObjectArray &objects) const
{
    return listShapes(*this, inputShape, objects);
}

MStatus MFnGeometryFilter::getOutputGeometry(MObjectArray &objects) const
{
    return listShapes(*this, outputShape, objects);
}

MObject MFnGeometryFilter::inputShapeAtIndex(unsigned int index, MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    return filter ? shapeObject(inputShape(filter, static_cast<int>(index)), ReturnStatus)
                  : MObject();
}

MObject MFnGeometryFilter::outputShapeAtIndex(unsigned int index, MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    return filter ? shapeObject(outputShape(filter, static_cast<int>(index)), ReturnStatus)
                  : MObject();
}

unsigned int MFnGeometryFilter::indexForOutputShape(const MObject &shape,
                                                    MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    const NodePtr wanted = host::nodeOf(shape);
    for (const int index : outputIndices(filter))
        if (wanted && outputShape(filter, index) == wanted)
            return static_cast<unsigned int>(index);
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
        count += !filter->destinations(outputOf(filter).element(index)).empty();
    return count;
}

unsigned int MFnGeometryFilter::indexForOutputConnection(unsigned int connectionIndex,
                                                         MStatus *ReturnStatus) const
{
    const NodePtr filter = filterFor(*this, ReturnStatus);
    if (!filter)
        return 0;
    for (const int index : outputIndices(filter)) {
        const bool isConnected = !filter->destinations(outputOf(filter).element(index)).empty();
        if (isConnected && connectionIndex-- == 0)
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
