// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/deformerNetwork.h"

#include <algorithm>

#include "mel/commands/setEditor.h"
#include "scene/history.h"
#include "scene/meshGeometry.h"

namespace host::mel
{

namespace
{

// What a mesh stores of its geometry.
const char *const kGeometryAttributes[] = {"vrts",     "edge",        "face",
                                           "pnts",     "normals",     "uvSet",
                                           "colorSet", "creaseData",  "creaseVertexData",
                                           "pinData",  "holeFaceData"};

// A deformer with the nodes that tie it to its points.
struct Deformer {
    NodePtr node;
    NodePtr set;
    NodePtr groupId;
    NodePtr groupParts;
};

Deformer createDeformer(Scene &scene, const NodePtr &node, const std::string &setName)
{
    Deformer deformer;
    deformer.node = node;
    deformer.set = scene.createNode("objectSet", setName);
    deformer.groupId = scene.createNode("groupId", "");
    deformer.groupParts = scene.createNode("groupParts", "");
    scene.setValue(deformer.set->plug("verticesOnlySet"), 1.0);
    scene.setValue(deformer.groupParts->plug("inputComponents"),
                   std::vector<std::string>{"vtx[*]"});
    for (const NodePtr &helper : {deformer.set, deformer.groupId, deformer.groupParts})
        scene.setValue(helper->plug("isHistoricallyInteresting"), 0.0);
    return deformer;
}

// The shape's points become members of the deformer's set.
void joinSet(Scene &scene, const Deformer &deformer, const DagPath &shape)
{
    addObjectGroup(scene, deformer.set, deformer.groupId, shape);
    scene.connect(deformer.node->plug("message"), plugAt(deformer.set, "usedBy[0]"));
}

void feed(Scene &scene, const Deformer &deformer, const Plug &geometry)
{
    scene.connect(deformer.groupId->plug("groupId"), plugAt(deformer.node, "input[0].groupId"));
    scene.connect(deformer.groupId->plug("groupId"), deformer.groupParts->plug("groupId"));
    scene.connect(geometry, deformer.groupParts->plug("inputGeometry"));
    scene.connect(deformer.groupParts->plug("outputGeometry"),
                  plugAt(deformer.node, "input[0].inputGeometry"));
}

// Moves what the mesh stores to another one; both keep the names of the UV sets.
void moveGeometry(Scene &scene, const NodePtr &from, const NodePtr &to)
{
    const Plug sets = from->plug("uvSet");
    std::vector<std::pair<int, Value>> names;
    for (const int index : from->elementIndices(sets)) {
        const Plug name = sets.element(index).child(sets.attribute->child("uvSetName"));
        names.emplace_back(index, from->storedValue(name));
    }
    for (const char *attribute : kGeometryAttributes) {
        if (from->findAttribute(attribute) &&
            from->findAttribute(attribute) == to->findAttribute(attribute))
            scene.moveData(from, to, attribute);
    }
    for (const auto &[index, name] : names)
        scene.setValue(sets.element(index).child(sets.attribute->child("uvSetName")), name);
}

// The geometry of a shape and the history that feeds it go to another shape.
void handOver(Scene &scene, const NodePtr &from, const NodePtr &to)
{
    moveGeometry(scene, from, to);
    const Connection *source = from->source(from->plug("inMesh"));
    if (!source)
        return;
    const Plug history = source->plug();
    scene.disconnect(history, from->plug("inMesh"));
    scene.connect(history, to->plug("inMesh"));
}

// A new intermediate shape with the geometry of `shape`, and a tweak behind it. Returns what the
// tweak gives out.
Plug addTweak(Scene &scene, const DagPath &shape)
{
    const NodePtr &mesh = shape.node();
    const NodePtr original = scene.createNode("mesh", mesh->name() + "Orig", shape.parent().node());
    scene.setValue(original->plug("intermediateObject"), 1.0);
    handOver(scene, mesh, original);
    const Deformer tweak = createDeformer(scene, scene.createNode("tweak", ""), "tweakSet#");
    joinSet(scene, tweak, shape);
    feed(scene, tweak, plugAt(original, "worldMesh[0]"));
    scene.connect(plugAt(tweak.node, "vlist[0].vertex[0]"), mesh->plug("tweakLocation"));
    return plugAt(tweak.node, "outputGeometry[0]");
}

bool isDeformed(const Node &mesh)
{
    const std::vector<NodePtr> history = geometryHistory(shapeInput(mesh));
    return std::any_of(history.begin(), history.end(),
                       [](const NodePtr &node) { return isDeformer(*node); });
}

// The set that a deformer uses; null if there is none.
NodePtr usedSet(const Node &deformer)
{
    for (const Connection &user : deformer.destinations(deformer.plug("message"))) {
        if (user.node->isA("objectSet") && user.attribute->longName == "usedBy")
            return user.node->shared_from_this();
    }
    return {};
}

NodePtr sourceNode(const Plug &plug, const char *type)
{
    const Connection *source = plug.node->source(plug);
    return source && source->node->isA(type) ? source->node->shared_from_this() : nullptr;
}

Deformer findDeformer(const NodePtr &node)
{
    Deformer deformer;
    deformer.node = node;
    deformer.set = usedSet(*node);
    deformer.groupId = sourceNode(plugAt(node, "input[0].groupId"), "groupId");
    deformer.groupParts = sourceNode(plugAt(node, "input[0].inputGeometry"), "groupParts");
    return deformer;
}

// The plug that feeds a deformer, before its groupParts; a null plug if there is none.
Plug geometryBefore(const Deformer &deformer)
{
    const Plug input = deformer.groupParts ? deformer.groupParts->plug("inputGeometry")
                                           : plugAt(deformer.node, "input[0].inputGeometry");
    const Connection *source = input.node->source(input);
    return source ? source->plug() : Plug();
}

// The object groups of shapes that a groupId names.
std::vector<Plug> objectGroups(const NodePtr &groupId)
{
    std::vector<Plug> groups;
    if (!groupId)
        return groups;
    for (const Connection &user : groupId->destinations(groupId->plug("groupId"))) {
        if (user.attribute->longName == "objectGroupId")
            groups.push_back(user.plug().parent());
    }
    return groups;
}

void deleteDeformer(Scene &scene, const Deformer &deformer)
{
    const std::vector<Plug> groups = objectGroups(deformer.groupId);
    for (const NodePtr &node :
         {deformer.set, deformer.groupId, deformer.groupParts, deformer.node}) {
        if (node)
            scene.deleteNode(node);
    }
    for (const Plug &group : groups)
        scene.removeElement(group);
}

// Takes a tweak out that nothing follows any more, if an intermediate shape feeds it.
void removeTweak(Scene &scene, const NodePtr &tweak, const NodePtr &mesh)
{
    const Deformer nodes = findDeformer(tweak);
    const Plug before = geometryBefore(nodes);
    if (before.isNull() || !before.node->isA("mesh") || !before.node->isIntermediate())
        return;
    deleteDeformer(scene, nodes);
    scene.connect(before, mesh->plug("inMesh"));
}

// A mesh that nothing deforms any more stores its geometry itself: the intermediate shape beside
// it, which fed the first deformer, gives it back and goes, unless it feeds something else.
void takeGeometryBack(Scene &scene, const NodePtr &mesh)
{
    const Connection *source = mesh->source(mesh->plug("inMesh"));
    if (!source || !source->node->isA("mesh") || !source->node->isIntermediate() ||
        source->node->parents() != mesh->parents())
        return;
    const auto &outputs = source->node->allDestinations();
    if (outputs.size() != 1 || outputs.begin()->second.size() != 1)
        return;
    const NodePtr original = source->node->shared_from_this();
    scene.disconnect(source->plug(), mesh->plug("inMesh"));
    handOver(scene, original, mesh);
    scene.deleteNode(original);
}

} // namespace

Plug plugAt(const NodePtr &node, std::string_view path)
{
    return resolvePlugPath(node, path, UnknownAttribute::refuse).plug;
}

void copyGeometry(Scene &scene, const NodePtr &from, const NodePtr &to)
{
    for (const char *attribute : kGeometryAttributes)
        scene.copyData(from, to, attribute);
}

void attachDeformer(Scene &scene, const NodePtr &deformer, const DagPath &shape)
{
    const NodePtr &mesh = shape.node();
    const Deformer nodes = createDeformer(scene, deformer, deformer->name() + "Set");
    joinSet(scene, nodes, shape);
    const bool hasChain = isDeformed(*mesh);
    const Plug before =
        hasChain ? mesh->source(mesh->plug("inMesh"))->plug() : addTweak(scene, shape);
    feed(scene, nodes, before);
    scene.connect(plugAt(deformer, "outputGeometry[0]"), mesh->plug("inMesh"), true);
    // Only now: until here they took the numbers that Maya gives them, and the tweak's the next.
    scene.rename(nodes.groupId, deformer->name() + "GroupId");
    scene.rename(nodes.groupParts, deformer->name() + "GroupParts");
}

void detachDeformer(Scene &scene, const NodePtr &deformer)
{
    const Deformer nodes = findDeformer(deformer);
    const Plug before = geometryBefore(nodes);
    const NodePtr mesh = deformedShape(*deformer);
    const std::vector<Connection> users =
        deformer->destinations(plugAt(deformer, "outputGeometry[0]"));
    deleteDeformer(scene, nodes);
    if (before.isNull())
        return;
    for (const Connection &user : users)
        scene.connect(before, user.plug());
    const Connection *last = mesh ? mesh->source(mesh->plug("inMesh")) : nullptr;
    if (last && last->node->isA("tweak"))
        removeTweak(scene, last->node->shared_from_this(), mesh);
    if (mesh)
        takeGeometryBack(scene, mesh);
}

} // namespace host::mel
