// SPDX-License-Identifier: Apache-2.0
// Walks along connections, through nodes, from a node or a plug.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MItDependencyGraph
{
public:
    enum Direction { kDownstream, kUpstream };
    enum Traversal { kDepthFirst, kBreadthFirst };
    enum Level { kNodeLevel, kPlugLevel };
    MItDependencyGraph(MObject &rootNode, MFn::Type filter = MFn::kInvalid,
                       Direction direction = kDownstream, Traversal traversal = kDepthFirst,
                       Level level = kNodeLevel, MStatus *ReturnStatus = nullptr);
    MItDependencyGraph(MPlug &rootPlug, MFn::Type filter = MFn::kInvalid,
                       Direction direction = kDownstream, Traversal traversal = kDepthFirst,
                       Level level = kPlugLevel, MStatus *ReturnStatus = nullptr);
    ~MItDependencyGraph();
    MStatus next();
    bool isDone(MStatus *ReturnStatus = nullptr);
    MStatus reset();
    MStatus prune();
    MObject currentItem(MStatus *ReturnStatus = nullptr);
    MPlug thisPlug(MStatus *ReturnStatus = nullptr);
    MPlug previousPlug(MStatus *ReturnStatus = nullptr);
    MStatus enablePruningOnFilter();
    MStatus disablePruningOnFilter();
    MStatus getNodePath(MObjectArray &path) const;
    static const char *className();

private:
    std::unique_ptr<host::GraphWalk> walk_;
};

MAYA_API_NAMESPACE_EXIT
