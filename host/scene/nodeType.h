// SPDX-License-Identifier: Apache-2.0
// Node types as data: the types around skinned meshes, each with its declared attributes.
//
// A type that is not in the table is still welcome in a file: its nodes learn their attributes as
// the file names them, and are written back whole.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "scene/attribute.h"

namespace host
{

class NodeType
{
public:
    std::string name;                     // "skinCluster"
    const NodeType *base = nullptr;       // null for "node", the root of all types
    bool isKnown = true;                  // false: met in a file only
    std::vector<AttributePtr> attributes; // top level, inherited ones first
    unsigned orderEnd = 0;                // one past the highest Attribute::order of this type

    // True for this type and all that it derives from: isA("dagNode").
    bool isA(std::string_view typeName) const;
    // An attribute, or the child of one, by long or short name; null if not declared. Names of
    // children clash between compounds in rare cases: the first in order wins.
    AttributePtr find(std::string_view attributeName) const;

private:
    friend class NodeTypes;
    std::unordered_map<std::string, AttributePtr> byName_;
};

class NodeTypes
{
public:
    NodeTypes(); // reads the built-in tables
    // The type, or null when the table does not have it and no file brought it.
    const NodeType *find(std::string_view name) const;
    // The type, taken in as an unknown one derived from `base` when it is new: "transform" for a
    // node that has children, "dagNode" for one that a file puts below a parent, "node" for any
    // other. An unknown type that does not derive from `base` yet is learned anew; nodes keep the
    // type that they have, see Scene::adoptType().
    const NodeType &findOrLearn(std::string_view name, std::string_view base);

private:
    void read(const char *table);
    NodeType &add(std::string_view name, const NodeType *base);
    std::vector<std::unique_ptr<NodeType>> types_;
    std::unordered_map<std::string, NodeType *> byName_;
};

} // namespace host
