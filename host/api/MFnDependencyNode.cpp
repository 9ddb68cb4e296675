// SPDX-License-Identifier: Apache-2.0
#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include "api/attributeBody.h"
#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "api/process.h"
#include "api/text.h"
#include "scene/history.h"

using host::answer;
using host::AttributePtr;
using host::NodePtr;
using host::Plug;

namespace
{

NodePtr nodeFor(const MFnBase &functionSet, MStatus *status)
{
    const NodePtr node = host::nodeOf(functionSet);
    host::report(status, node ? MStatus::kSuccess : MStatus::kFailure);
    return node;
}

void listAttributes(const std::vector<AttributePtr> &level, std::vector<AttributePtr> &all)
{
    for (const AttributePtr &attribute : level) {
        all.push_back(attribute);
        listAttributes(attribute->children, all);
    }
}

// Attributes with all their children, in order.
std::vector<AttributePtr> allAttributes(const NodePtr &node)
{
    std::vector<AttributePtr> all;
    listAttributes(node->attributes(), all);
    return all;
}

// By long or short name; the attributes that geometry goes through answer to both of theirs even on
// a node of a type that the host does not know.
AttributePtr attributeNamed(const NodePtr &node, const MString &name)
{
    return host::geometryAttribute(*node, host::view(name));
}

bool isTaken(const NodePtr &node, const host::Attribute &attribute)
{
    if (node->findAttribute(attribute.longName) || node->findAttribute(attribute.shortName))
        return true;
    for (const AttributePtr &child : attribute.children)
        if (isTaken(node, *child))
            return true;
    return false;
}

// What a node gains beyond its type is saved with it, children and all.
void markDynamic(host::Attribute &attribute)
{
    attribute.isDynamic = true;
    for (std::size_t i = 0; i < attribute.children.size(); ++i)
        markDynamic(*attribute.newChild(i));
}

} // namespace

DEFINE_FUNCTION_SET(MFnDependencyNode, MFn::kDependencyNode)

MObject MFnDependencyNode::create(const MString &type, MStatus *ReturnStatus)
{
    return create(type, MString(), ReturnStatus);
}

MObject MFnDependencyNode::create(const MString &type, const MString &name, MStatus *ReturnStatus)
{
    host::Process *process = host::Process::current();
    if (!process)
        return answer(ReturnStatus, MStatus::kFailure, MObject());
    MObject object;
    const MStatus status = host::quietly(MStatus::kInvalidParameter, [&] {
        host::Scene &scene = process->session().scene();
        const host::RecordingPause pause(scene);
        object = host::toObject(scene.createNode(host::view(type), host::view(name)));
        host::announceChanges();
    });
    return answer(ReturnStatus, status ? setObject(object) : status, object);
}

MString MFnDependencyNode::typeName(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? host::toMString(node->type().name) : MString();
}

MString MFnDependencyNode::name(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? host::toMString(node->name()) : MString();
}

MString MFnDependencyNode::setName(const MString &name, bool, MStatus *ReturnStatus)
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MString();
    MString given;
    const MStatus status = host::loudly([&] {
        const host::RecordingPause pause(*node->scene());
        given = host::toMString(node->scene()->rename(node, host::view(name)));
        host::announceChanges();
    });
    return answer(ReturnStatus, status, given);
}

MStatus MFnDependencyNode::getConnections(MPlugArray &array) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    MPlugArray plugs;
    for (const auto &source : node->sources())
        plugs.append(host::toMPlug(node->plugOf(source.first), true));
    for (const auto &destination : node->allDestinations())
        if (node->sources().find(destination.first) == node->sources().end())
            plugs.append(host::toMPlug(node->plugOf(destination.first), true));
    array = plugs;
    return MStatus::kSuccess;
}

unsigned int MFnDependencyNode::attributeCount(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? static_cast<unsigned int>(allAttributes(node).size()) : 0;
}

MObject MFnDependencyNode::attribute(unsigned int index, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MObject();
    const std::vector<AttributePtr> all = allAttributes(node);
    if (index >= all.size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    return host::toObject(all[index]);
}

MObject MFnDependencyNode::attribute(const MString &attrName, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    const AttributePtr found = node ? attributeNamed(node, attrName) : nullptr;
    if (node && !found)
        host::report(ReturnStatus, MStatus::kInvalidParameter);
    return host::toObject(found);
}

MPlug MFnDependencyNode::findPlug(const MObject &attr, bool wantNetworkedPlug,
                                  MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MPlug();
    const MPlug plug(object(), attr);
    if (plug.isNull())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    return host::toMPlug(*host::plugOf(plug), wantNetworkedPlug);
}

MPlug MFnDependencyNode::findPlug(const MString &attrName, bool wantNetworkedPlug,
                                  MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MPlug();
    const AttributePtr found = attributeNamed(node, attrName);
    if (!found)
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    return host::toMPlug(Plug(node, found), wantNetworkedPlug);
}

// The attribute becomes the node's own: it goes to one node, and children come with their parent.
MStatus MFnDependencyNode::addAttribute(const MObject &attr)
{
    const NodePtr node = host::nodeOf(*this);
    const auto body = host::bodyOf<host::AttributeBody>(attr);
    if (!node)
        return MStatus::kFailure;
    if (!body || !body->draft || body->attribute->parent)
        return MStatus::kInvalidParameter;
    if (isTaken(node, *body->attribute)) {
        host::showError("Attribute '" + body->attribute->longName + "' already exists on node '" +
                        node->name() + "'.");
        return MStatus::kFailure;
    }
    const MStatus status = host::loudly([&] {
        const host::RecordingPause pause(*node->scene());
        markDynamic(*body->draft);
        node->scene()->addAttribute(node, body->draft);
    });
    if (status)
        body->draft = nullptr;
    return status;
}

MStatus MFnDependencyNode::removeAttribute(const MObject &attr)
{
    const NodePtr node = host::nodeOf(*this);
    const AttributePtr attribute = host::attributeOf(attr);
    if (!node)
        return MStatus::kFailure;
    if (!attribute || !attribute->isDynamic ||
        node->findAttribute(attribute->longName) != attribute)
        return MStatus::kInvalidParameter;
    return host::loudly([&] {
        const host::RecordingPause pause(*node->scene());
        node->scene()->removeAttribute(node, attribute);
    });
}

bool MFnDependencyNode::hasAttribute(const MString &name, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node && attributeNamed(node, name);
}

bool MFnDependencyNode::isFromReferencedFile(MStatus *ReturnStatus) const
{
    nodeFor(*this, ReturnStatus);
    return false; // the host resolves no references
}

bool MFnDependencyNode::isLocked(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node && node->isLocked();
}

MStatus MFnDependencyNode::setLocked(bool locked)
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    return host::loudly([&] {
        const host::RecordingPause pause(*node->scene());
        node->scene()->setNodeLock(node, locked, node->isLockUnpublished());
    });
}
