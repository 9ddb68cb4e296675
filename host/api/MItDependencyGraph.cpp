// SPDX-License-Identifier: Apache-2.0
#include <maya/MItDependencyGraph.h>
#include <maya/MObjectArray.h>

#include "api/graphWalk.h"
#include "api/nodeBody.h"
#include "api/status.h"

using host::answer;
using host::GraphWalk;

namespace
{

GraphWalk *currentWalk(const std::unique_ptr<GraphWalk> &walk, MStatus *status)
{
    GraphWalk *current = walk && !walk->isDone() ? walk.get() : nullptr;
    return answer(status, current ? MStatus::kSuccess : MStatus::kFailure, current);
}

} // namespace

MItDependencyGraph::MItDependencyGraph(MObject &rootNode, MFn::Type filter, Direction direction,
                                       Traversal traversal, Level level, MStatus *ReturnStatus)
{
    const host::NodePtr node = host::nodeOf(rootNode);
    if (node)
        walk_.reset(new GraphWalk(node, {filter, direction, traversal, level, false}));
    host::report(ReturnStatus, node ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItDependencyGraph::MItDependencyGraph(MPlug &rootPlug, MFn::Type filter, Direction direction,
                                       Traversal traversal, Level level, MStatus *ReturnStatus)
{
    const host::Plug *plug = host::plugOf(rootPlug);
    if (plug)
        walk_.reset(new GraphWalk(*plug, {filter, direction, traversal, level, false}));
    host::report(ReturnStatus, plug ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItDependencyGraph::~MItDependencyGraph() = default;
const char *MItDependencyGraph::className()
{
    return "MItDependencyGraph";
}

MStatus MItDependencyGraph::next()
{
    MStatus status;
    if (GraphWalk *walk = currentWalk(walk_, &status))
        walk->next();
    return status;
}

bool MItDependencyGraph::isDone(MStatus *ReturnStatus)
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kFailure);
    return !walk_ || walk_->isDone();
}

MStatus MItDependencyGraph::reset()
{
    if (!walk_)
        return MStatus::kFailure;
    walk_->restart();
    return MStatus::kSuccess;
}

MStatus MItDependencyGraph::prune()
{
    MStatus status;
    if (GraphWalk *walk = currentWalk(walk_, &status))
        walk->prune();
    return status;
}

MObject MItDependencyGraph::currentItem(MStatus *ReturnStatus)
{
    const GraphWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? host::toObject(walk->node()) : MObject();
}

MPlug MItDependencyGraph::thisPlug(MStatus *ReturnStatus)
{
    const GraphWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? host::toMPlug(walk->plug(), true) : MPlug();
}

MPlug MItDependencyGraph::previousPlug(MStatus *ReturnStatus)
{
    const GraphWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? host::toMPlug(walk->previousPlug(), true) : MPlug();
}

// Before the first item is asked for: the walk starts anew.
MStatus MItDependencyGraph::enablePruningOnFilter()
{
    if (!walk_)
        return MStatus::kFailure;
    walk_->settings.prunesOnFilter = true;
    walk_->restart();
    return MStatus::kSuccess;
}

MStatus MItDependencyGraph::disablePruningOnFilter()
{
    if (!walk_)
        return MStatus::kFailure;
    walk_->settings.prunesOnFilter = false;
    walk_->restart();
    return MStatus::kSuccess;
}

MStatus MItDependencyGraph::getNodePath(MObjectArray &path) const
{
    MStatus status;
    const GraphWalk *walk = currentWalk(walk_, &status);
    if (!walk)
        return status;
    MObjectArray nodes;
    for (const host::NodePtr &node : walk->nodePath())
        nodes.append(host::toObject(node));
    path = nodes;
    return MStatus::kSuccess;
}
