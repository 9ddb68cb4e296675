// SPDX-License-Identifier: Apache-2.0
// Writes one node: createNode, and the statements about it.
#pragma once

#include "ma/valueWriter.h"

namespace host::ma
{

// Whether the node's list of aliases has to be added to it in a file.
bool hasAliases(const NodePtr &node);

class NodeWriter
{
public:
    NodeWriter(StatementWriter &out, const FileStyle &style) : out_(out), style_(style) {}

    // The node below its first parent, which has to be written before.
    void writeNode(const NodePtr &node);
    // "select -ne :time1;" and what was changed about a node that always exists.
    void writeDefaultNode(const NodePtr &node);

    // Parts of it: the statements that make the node and say its UUID; one dynamic attribute with
    // its children; the list of aliases; the locks of the node.
    void writeCreateNode(const NodePtr &node);
    void writeUuid(const Node &node);
    void writeAddAttr(const Attribute &attribute);
    void writeAddAliases();
    void writeLocks(const Node &node);

private:
    enum class Kept { aboutAttributes, aboutNode };
    void writeKept(const Node &node, Kept which);
    void writeBlock(const NodePtr &node);
    void writeNumberFlags(const Attribute &attribute);

    StatementWriter &out_;
    const FileStyle &style_;
};

} // namespace host::ma
