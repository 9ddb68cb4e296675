// SPDX-License-Identifier: Apache-2.0
#include "scene/history.h"

#include <algorithm>

#include "scene/plugAccess.h"

namespace host
{

namespace
{

// Names under which node types take geometry in, long and short: files teach only one of them.
constexpr std::string_view kInputNames[] = {"inputGeometry", "ig", "inputPolymesh", "inMesh", "ip"};

constexpr std::string_view kShapeInputs[] = {"inMesh", "create", "latticeInput"};

Plug firstConnected(const NodePtr &node, const AttributePtr &attribute)
{
    Plug plug(node, attribute);
    if (!attribute->isArray)
        return node->source(plug) ? plug : Plug();
    for (const int index : node->elementIndices(plug)) {
        if (node->source(plug.element(index)))
            return plug.element(index);
    }
    return Plug();
}

Plug deformerInput(const NodePtr &node, int index)
{
    const AttributePtr input = node->findAttribute("input");
    const AttributePtr geometry = input ? input->child("inputGeometry") : nullptr;
    if (!geometry)
        return Plug();
    Plug plug(node, geometry);
    plug.indices[0] = std::max(0, index);
    return plug;
}

// An array of compounds with a geometry child, on a deformer whose type the host does not know:
// "ip[0].ig".
Plug learnedDeformerInput(const NodePtr &node, int index)
{
    for (const std::string_view name : {"ip", "input"}) {
        const AttributePtr input = node->findAttribute(name);
        if (!input || !input->isArray)
            continue;
        for (const std::string_view child : {"ig", "inputGeometry"}) {
            if (const AttributePtr geometry = input->child(child)) {
                Plug plug(node, geometry);
                plug.indices[0] = std::max(0, index);
                return plug;
            }
        }
    }
    return Plug();
}

} // namespace

Plug shapeInput(const Node &shape)
{
    for (const std::string_view name : kShapeInputs) {
        if (shape.isA("shape") && shape.findAttribute(name))
            return shape.plug(name);
    }
    return Plug();
}

Plug geometryInputFor(const Plug &output)
{
    const NodePtr &node = output.node;
    if (node->isA("shape"))
        return Plug();
    if (node->isA("geometryFilter"))
        return deformerInput(node, output.indices[0]);
    const Plug learned = learnedDeformerInput(node, output.indices[0]);
    if (!learned.isNull())
        return learned;
    for (const std::string_view name : kInputNames) {
        const AttributePtr attribute = node->findAttribute(name);
        const Plug plug = attribute ? firstConnected(node, attribute) : Plug();
        if (!plug.isNull())
            return plug;
    }
    return Plug();
}

std::vector<NodePtr> geometryHistory(const Plug &input)
{
    std::vector<NodePtr> history;
    Plug step = input;
    while (!step.isNull()) {
        const Connection *connection = step.node->source(step);
        if (!connection)
            break;
        const Plug output = connection->plug();
        if (std::find(history.begin(), history.end(), output.node) != history.end())
            break; // a circle
        history.push_back(output.node);
        step = geometryInputFor(output);
    }
    return history;
}

} // namespace host
