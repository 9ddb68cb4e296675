// SPDX-License-Identifier: Apache-2.0
// One way from the top of the scene down to a DAG node; a node with instances has several.
#pragma once

#include <string>
#include <vector>

#include "scene/plug.h"

namespace host
{

class DagPath
{
public:
    DagPath() = default;
    explicit DagPath(std::vector<NodePtr> nodes) : nodes_(std::move(nodes)) {}

    // The node's first path; every path of it, in instance order.
    static DagPath first(const NodePtr &node);
    static std::vector<DagPath> all(const NodePtr &node);

    bool isNull() const { return nodes_.empty(); }
    // True while every node of the path is in the scene and still the child of the one before.
    bool isValid() const;
    const NodePtr &node() const { return nodes_.back(); } // REQUIRES: !isNull()
    // Nodes from the top down, the invisible world left out.
    const std::vector<NodePtr> &nodes() const { return nodes_; }
    DagPath child(const NodePtr &node) const;
    DagPath parent() const; // null at the top

    std::string fullName() const;    // "|group1|pCube1|pCubeShape1"
    std::string partialName() const; // the shortest name that is unique in the scene
    // Which of all(node()) this is, 0-based.
    unsigned instanceNumber() const;
    bool operator==(const DagPath &other) const { return nodes_ == other.nodes_; }

private:
    std::vector<NodePtr> nodes_;
};

} // namespace host
