// SPDX-License-Identifier: Apache-2.0
// Writes a scene as the statements of a Maya ASCII file, in Maya's order.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "ma/nodeWriter.h"
#include "scene/scene.h"

namespace host::ma
{

// How a file of the scene's release writes it.
FileStyle styleOf(const FileFacts &facts);

// `connectAttr` for a connection into `destination`.
void writeConnection(StatementWriter &out, const FlagNames &flags, const Plug &destination,
                     const Connection &connection);

// The same for one that the file made and the scene can't. REQUIRES: hasItsNodes().
void writeKeptConnection(StatementWriter &out, const KeptConnection &connection);
// False once a node of it was deleted.
bool hasItsNodes(const KeptConnection &connection);

// The nodes that are not among those written, default nodes aside, and the connections that they
// take with them ("a.x -> b.y"); or how many connections are missing of those that `connections`
// counts.
std::vector<std::string> missingNames(const Scene &scene, const std::vector<NodePtr> &written,
                                      std::size_t connections);

class SceneWriter
{
public:
    SceneWriter(StatementWriter &out, Scene &scene);

    // All of it, header and end included. `fileName` is what the header names: no folder. Throws
    // Error, with their names, if nodes or connections of the scene were not among what was
    // written.
    void writeFile(const std::string &fileName);

    // A file of some nodes and the connections among them and with default nodes. A DAG node is
    // among them only with all its parents. References, light links and metadata stay behind.
    void writePart(const std::string &fileName, const std::unordered_set<const Node *> &nodes);

    // Nodes and connections only, for another scene: what that scene has anyway, default nodes and
    // the nodes in `present`, is named in connections but not changed.
    void writeNodesFor(const std::vector<NodePtr> &present);

    // Parts of the file: `currentUnit`, and one more place of an instanced node.
    void writeUnits();
    void writeInstanceOf(const NodePtr &node, const Node &parent);

private:
    void refuseToLose() const;
    void writeHeader(const std::string &fileName);
    void writeFacts();
    void writeAllNodes();
    void writeEnd(const std::string &fileName);
    void writeBelow(const NodePtr &parent);
    void writeInstance(const NodePtr &node, const NodePtr &parent);
    void writeLateInstances();
    void writeDependencyNodes();
    void writeConnections();
    void writeConnectionsInto(const NodePtr &node);
    void writeKeptConnections();
    bool isPresent(const NodePtr &node) const;
    bool isInPart(const Node &node) const;

    StatementWriter &out_;
    Scene &scene_;
    FileStyle style_;
    NodeWriter nodes_;
    bool isForOther_ = false;
    std::vector<NodePtr> present_;
    const std::unordered_set<const Node *> *part_ = nullptr;  // null: everything
    std::vector<NodePtr> written_;                            // in the order of their createNode
    std::size_t connections_ = 0;                             // written so far
    std::unordered_map<const Node *, std::size_t> instances_; // of nodes with several: done so far
};

} // namespace host::ma
