// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/deleteHistory.h"

#include "scene/history.h"
#include "scene/primitives.h"

namespace host::mel
{

namespace
{

// Outputs of a node that nobody takes any more make the node useless.
bool isUnused(const Node &node)
{
    return node.allDestinations().empty();
}

void bake(Scene &scene, const NodePtr &mesh)
{
    const Plug input = shapeInput(*mesh);
    const Connection *source = input.isNull() ? nullptr : mesh->source(input);
    if (!source)
        return;
    const std::vector<NodePtr> history = geometryHistory(input);
    for (const NodePtr &node : history) {
        if (primitiveGeometry(*node).points.empty())
            throw Error("delete: The history of '" + mesh->uniqueName() +
                        "' cannot be deleted: it contains '" + node->uniqueName() + "'.");
    }
    const MeshGeometry geometry = meshGeometry(*mesh);
    scene.disconnect(source->plug(), input);
    storeGeometry(scene, mesh, geometry);
    for (const NodePtr &node : history) {
        if (isUnused(*node))
            scene.deleteNode(node);
    }
}

} // namespace

void deleteHistory(Scene &scene, const NodePtr &node)
{
    if (node->isA("mesh")) {
        bake(scene, node);
        return;
    }
    for (const NodePtr &child : node->children())
        deleteHistory(scene, child);
}

} // namespace host::mel
