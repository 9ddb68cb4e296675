// SPDX-License-Identifier: Apache-2.0
// Nodes as MObject, MDagPath and MPlug see them.
//
// An MObject does not keep its node alive, so that it can tell when the node is gone; a path and a
// plug do. Whatever takes one of them for a call of the API checks first that its node is still in
// the scene: after that no part of the scene can be missing.
#pragma once

#include <vector>

#include <maya/MDagPath.h>
#include <maya/MPlug.h>

#include "api/objectBody.h"
#include "scene/dagPath.h"
#include "scene/node.h"
#include "scene/plug.h"

namespace host
{

// The kinds of a node type: the most derived first, MFn::kBase last.
std::vector<MFn::Type> kindsOf(const NodeType &type);

class NodeBody : public ObjectBody
{
public:
    explicit NodeBody(const NodePtr &node);

    // Null once nothing in the scene or the undo queue holds the node any more.
    NodePtr node() const { return node_.lock(); }
    const void *identity() const { return identity_; }
    MFn::Type apiType() const override { return kinds_.front(); }
    bool hasFn(MFn::Type type) const override;
    bool sameAs(const ObjectBody &other) const override;

private:
    std::weak_ptr<Node> node_;
    const void *identity_;         // differs between nodes that live at the same time
    std::vector<MFn::Type> kinds_; // of the node's type, which may be gone before this object
};

class PathBody
{
public:
    explicit PathBody(DagPath dagPath) : path(std::move(dagPath)) {}
    const DagPath path; // never null
};

class PlugBody
{
public:
    PlugBody(Plug hostPlug, bool networked) : plug(std::move(hostPlug)), isNetworked(networked) {}
    // Logical index of the physical-th element, -1 if there is none. Remembers the order, so that
    // walking over all elements takes linear time.
    int logicalIndex(unsigned physical) const;

    const Plug plug; // never null
    const bool isNetworked;

private:
    mutable std::vector<int> order_;
    mutable unsigned long orderRevision_ = 0; // of the node's data, when `order_` was read
    mutable bool isOrderKnown_ = false;
};

MObject toObject(const NodePtr &node); // the null object for none
MDagPath toMDagPath(DagPath path);     // an invalid path for a null one
MPlug toMPlug(Plug plug, bool isNetworked = false);

// The node if it is one and in the scene, else null.
NodePtr nodeOf(const MObject &object);
NodePtr nodeOf(const MFnBase &functionSet);
// Logical indices of the elements that exist, ascending: stored ones, and of a computed array those
// that are connected or that the node's instances call for.
std::vector<int> elementIndices(const Plug &wholeArray);

// The path if it is valid, else null; the plug if its node is in the scene, else null.
const DagPath *pathOf(const MDagPath &path);
const Plug *plugOf(const MPlug &plug);

} // namespace host
