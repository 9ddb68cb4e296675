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

// "ip" alone is the mesh that a modelling node changes, "ip[]" the inputs of a deformer.
struct GeometryName {
    std::string_view longName;
    std::string_view shortName;
    bool isArray;
    std::string_view above; // the compound that has it on a deformer
};
constexpr GeometryName kGeometryNames[] = {
    {"input", "ip", true, {}},
    {"inputGeometry", "ig", false, "input"},
    {"inputPolymesh", "ip", false, {}},
    {"outputGeometry", "og", true, {}},
};

// inputGeometry of the elements of a deformer's input; null on other nodes.
AttributePtr deformerInput(const Node &node)
{
    const AttributePtr geometry = geometryAttribute(node, "inputGeometry");
    return geometry && geometry->parent && geometry->parent->isArray ? geometry : nullptr;
}

// The outputs of the node that are made from the geometry at `input`.
std::vector<Plug> outputsMadeFrom(const Plug &input)
{
    std::vector<Plug> outputs;
    for (const auto &entry : input.node->allDestinations()) {
        Plug output = input.node->plugOf(entry.first);
        if (geometryInputFor(output) == input)
            outputs.push_back(std::move(output));
    }
    return outputs;
}

template <class Item>
void appendNew(const Item &item, std::vector<Item> &items)
{
    if (std::find(items.begin(), items.end(), item) == items.end())
        items.push_back(item);
}

} // namespace

AttributePtr geometryAttribute(const Node &node, std::string_view name)
{
    if (AttributePtr attribute = node.findAttribute(name))
        return attribute;
    const auto row =
        std::find_if(std::begin(kGeometryNames), std::end(kGeometryNames),
                     [name](const GeometryName &candidate) { return candidate.longName == name; });
    if (row == std::end(kGeometryNames) || node.type().isKnown)
        return nullptr;
    const AttributePtr above = row->above.empty() ? nullptr : geometryAttribute(node, row->above);
    for (const std::string_view other : {row->longName, row->shortName}) {
        const AttributePtr attribute = above ? above->child(other) : node.findAttribute(other);
        if (attribute && attribute->isArray == row->isArray)
            return attribute;
    }
    return nullptr;
}

bool isDeformer(const Node &node)
{
    if (node.isA("geometryFilter"))
        return true;
    if (node.type().isKnown || !deformerInput(node))
        return false;
    const AttributePtr output = geometryAttribute(node, "outputGeometry");
    return output && output->isArray;
}

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
    if (const AttributePtr geometry = deformerInput(*node)) {
        Plug plug(node, geometry);
        plug.indices[0] = std::max(0, output.indices[0]);
        return plug;
    }
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
    while (!step.isNull() && history.size() < kMaxHistoryLength) {
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

std::vector<NodePtr> shapesFedBy(const Plug &output)
{
    std::vector<NodePtr> shapes;
    std::vector<Plug> outputs{output};
    for (std::size_t i = 0; i < outputs.size() && i < kMaxHistoryLength; ++i) {
        for (const Connection &connection : outputs[i].node->destinations(outputs[i])) {
            const Plug input = connection.plug();
            if (input == shapeInput(*input.node)) {
                appendNew(input.node, shapes);
                continue;
            }
            for (const Plug &next : outputsMadeFrom(input))
                appendNew(next, outputs);
        }
    }
    return shapes;
}

} // namespace host
