// SPDX-License-Identifier: Apache-2.0
// Writes one node: createNode, and the statements about it.
#pragma once

#include "ma/valueWriter.h"

namespace host::ma
{

class NodeWriter
{
public:
    NodeWriter(StatementWriter &out, const FileStyle &style) : out_(out), style_(style) {}

    // The node below its first parent, which has to be written before.
    void writeNode(const NodePtr &node);
    // "select -ne :time1;" and what was changed about a node that always exists.
    void writeDefaultNode(const NodePtr &node);

private:
    enum class Kept { aboutAttributes, aboutNode };
    void writeKept(const Node &node, Kept which);
    void writeBlock(const NodePtr &node);
    void writeAddAttr(const Attribute &attribute);
    void writeNumberFlags(const Attribute &attribute);
    void writeLocks(const Node &node);

    StatementWriter &out_;
    const FileStyle &style_;
};

} // namespace host::ma
