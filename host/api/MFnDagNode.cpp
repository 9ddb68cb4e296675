// SPDX-License-Identifier: Apache-2.0
#include <maya/MColor.h>
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MFnDagNode.h>
#include <maya/MObjectArray.h>

#include "api/componentBody.h"
#include "api/dagColors.h"
#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "api/process.h"
#include "api/text.h"
#include "scene/setMembers.h"

using host::answer;
using host::DagPath;
using host::NodePtr;

namespace
{

NodePtr nodeFor(const MFnBase &functionSet, MStatus *status)
{
    const NodePtr node = host::nodeOf(functionSet);
    host::report(status, node ? MStatus::kSuccess : MStatus::kFailure);
    return node;
}

// The path that the function set was made on, if it still is one, else the node's first path.
DagPath somePath(const MFnDagNode &functionSet, const NodePtr &node)
{
    const auto &body = host::ApiAccess::path(functionSet);
    return body && body->path.isValid() ? body->path : DagPath::first(node);
}

bool isHilited(const NodePtr &node)
{
    const host::Process *process = host::Process::current();
    if (!process)
        return false;
    for (const host::SelectionItem &item :
         const_cast<host::Process *>(process)->session().hilited().items())
        if (item.node == node)
            return true;
    return false;
}

bool isRenderable(const NodePtr &set)
{
    return set->isA("shadingEngine");
}

// Adds what the set has of the shape's instance: components, or the null object for all of it.
void addMemberships(const NodePtr &set, const NodePtr &node, const DagPath &instance,
                    MObjectArray &sets, MObjectArray &components)
{
    for (const host::SelectionItem &item : host::setMembers(*set)) {
        const bool isWhole =
            !item.component && (item.node == node || item.path == instance.parent());
        const bool isPart = item.component && item.node == node && item.path == instance;
        if (!isWhole && !isPart)
            continue;
        sets.append(host::toObject(set));
        components.append(isPart ? host::toObject(*item.component) : MObject());
    }
}

} // namespace

DEFINE_DAG_FUNCTION_SET(MFnDagNode, MFn::kDagNode)

MStatus MFnDagNode::setObject(const MDagPath &path)
{
    const MStatus status = setObject(path.node());
    if (status)
        path_ = host::ApiAccess::body(path);
    return status;
}

MStatus MFnDagNode::setObject(MObject &object)
{
    return setObject(static_cast<const MObject &>(object));
}

MStatus MFnDagNode::setObject(const MObject &object)
{
    path_.reset();
    return MFnBase::setObject(object);
}

MObject MFnDagNode::create(const MString &type, MObject &parent, MStatus *ReturnStatus)
{
    return create(type, MString(), parent, ReturnStatus);
}

MObject MFnDagNode::create(const MString &type, const MString &name, MObject &parent,
                           MStatus *ReturnStatus)
{
    host::Process *process = host::Process::current();
    const NodePtr above = host::nodeOf(parent);
    if (!process || (!parent.isNull() && !above))
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    MObject object;
    const MStatus status = host::quietly(MStatus::kInvalidParameter, [&] {
        host::Scene &scene = process->session().scene();
        const host::NodeType *nodeType = scene.types().find(host::view(type));
        if (!nodeType || !nodeType->isA("dagNode"))
            throw host::Error("no DAG node type");
        const host::RecordingPause pause(scene);
        object = host::toObject(scene.createNode(host::view(type), host::view(name), above));
        host::announceChanges();
    });
    return answer(ReturnStatus, status ? setObject(object) : status, object);
}

unsigned int MFnDagNode::parentCount(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? static_cast<unsigned int>(node->parents().size()) : 0;
}

MObject MFnDagNode::parent(unsigned int i, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MObject();
    if (i >= node->parents().size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    return host::toObject(node->parents()[i]->shared_from_this());
}

unsigned int MFnDagNode::childCount(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? static_cast<unsigned int>(node->children().size()) : 0;
}

MObject MFnDagNode::child(unsigned int i, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MObject();
    if (i >= node->children().size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    return host::toObject(node->children()[i]);
}

// `total` counts instances of nodes above too.
unsigned int MFnDagNode::instanceCount(bool total, MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return 0;
    const std::size_t count = total ? DagPath::all(node).size() : node->parents().size();
    return static_cast<unsigned int>(count);
}

MStatus MFnDagNode::getPath(MDagPath &path) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    path = host::toMDagPath(somePath(*this, node));
    return MStatus::kSuccess;
}

MStatus MFnDagNode::getAllPaths(MDagPathArray &paths) const
{
    return MDagPath::getAllPathsTo(object(), paths);
}

MDagPath MFnDagNode::dagPath(MStatus *ReturnStatus) const
{
    MDagPath path;
    host::ApiAccess::body(path) = path_;
    host::report(ReturnStatus, path.isValid() ? MStatus::kSuccess : MStatus::kFailure);
    return path;
}

MString MFnDagNode::fullPathName(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? host::toMString(somePath(*this, node).fullName()) : MString();
}

MString MFnDagNode::partialPathName(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node ? host::toMString(somePath(*this, node).partialName()) : MString();
}

bool MFnDagNode::isIntermediateObject(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node && node->isIntermediate();
}

MColor MFnDagNode::dormantColor(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    if (!node)
        return MColor();
    return isHilited(node) ? MColor(host::kHiliteColor) : host::objectColor(*node);
}

MColor MFnDagNode::activeColor(MStatus *ReturnStatus) const
{
    return nodeFor(*this, ReturnStatus) ? MColor(host::kActiveColor) : MColor();
}

MColor MFnDagNode::hiliteColor(MStatus *ReturnStatus) const
{
    return nodeFor(*this, ReturnStatus) ? MColor(host::kHiliteColor) : MColor();
}

bool MFnDagNode::usingHiliteColor(MStatus *ReturnStatus) const
{
    const NodePtr node = nodeFor(*this, ReturnStatus);
    return node && isHilited(node);
}

MStatus MFnDagNode::getConnectedSetsAndMembers(unsigned int instanceNumber, MObjectArray &sets,
                                               MObjectArray &comps, bool renderableSetsOnly) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    const std::vector<DagPath> paths = DagPath::all(node);
    if (instanceNumber >= paths.size())
        return MStatus::kInvalidParameter;
    MObjectArray foundSets;
    MObjectArray foundComponents;
    for (const NodePtr &set : node->scene()->nodes())
        if (set->isA("objectSet") && (!renderableSetsOnly || isRenderable(set)))
            addMemberships(set, node, paths[instanceNumber], foundSets, foundComponents);
    sets = foundSets;
    comps = foundComponents;
    return MStatus::kSuccess;
}
