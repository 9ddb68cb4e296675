// SPDX-License-Identifier: Apache-2.0
// Attributes are data: what a node type or a node declares, never a value.
//
// An attribute is a leaf, a compound (with children) or an array (multi) of either. A top-level
// attribute is shared by all nodes of its type, or belongs to one node when it is dynamic (addAttr)
// or learned (met in a file on a node whose type does not declare it).
//
// Whoever makes an attribute may fill it in; once a type or a node has it, all see it as const.
// What it is changes only when its node learns more about it (Scene::learn).
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host
{

enum class AttributeKind {
    boolean,
    integer,  // byte, char, short, long, int64
    floating, // single precision: values are rounded to float
    real,     // double, doubleLinear, doubleAngle, time
    enumeration,
    message,
    compound,
    string,
    matrix,
    stringList, // stringArray, componentList
    numberList, // doubleArray, floatArray, Int32Array, pointArray, vectorArray
    opaque,     // a data type that the host keeps as text
    learned     // met in a file: neither type nor shape is known beforehand
};

// What turns out about a learned attribute by the way it is named or filled.
enum class LearnedShape {
    array,
    unorderedArray, // its elements are connected with connectAttr -nextAvailable
    numbers         // an array of numbers; REQUIRES: nothing is stored in it
};

class Attribute;
using AttributePtr = std::shared_ptr<const Attribute>;
// Still being declared: no node and no type has it.
using NewAttributePtr = std::shared_ptr<Attribute>;

class Attribute
{
public:
    std::string longName;
    std::string shortName;
    AttributeKind kind = AttributeKind::real;
    // As `getAttr -type` and addAttr's -at or -dt say it: "double", "float3", "stringArray".
    std::string typeName = "double";
    bool isArray = false;
    bool isDynamic = false;
    bool isDataType = false; // declared with -dt rather than -at
    bool isPerInstance =
        false;               // array over the instances of a DAG node (instObjGroups, worldMatrix)
    bool isComputed = false; // derived by the host: never stored, never saved
    bool isReadable = true;
    bool isWritable = true;
    bool isConnectable = true;
    bool isStorable = true;
    bool isKeyable = false;
    bool isChannelBox = false;
    bool isHidden = false;
    bool isCached = true;
    bool indexMatters = true;
    bool isUsedAsColor = false;
    double defaultNumber = 0.0;
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::optional<double> softMinimum;
    std::optional<double> softMaximum;
    std::string enumNames; // "none:interactive:post", fields as addAttr -en takes them
    std::string niceName;
    // Flags of addAttr that the host keeps without using them, as " -flag value" text.
    std::string otherFlags;

    std::vector<AttributePtr> children; // of a compound, in order
    const Attribute *parent = nullptr;  // the compound that owns this one; null at top level
    // Place in the order in which a node lists its attributes, unique on a node.
    unsigned order = 0;

    bool isCompound() const { return kind == AttributeKind::compound; }
    bool isLearned() const { return kind == AttributeKind::learned; }
    bool isNumber() const { return kind <= AttributeKind::enumeration; }
    // A compound of two to four plain numbers: double3, float2, long3, ...
    bool isTuple() const;
    // An array whose elements are plain numbers or tuples of them: kept as one block of numbers.
    bool isPackedArray() const;
    // Numbers per element of a packed array: 1, or the tuple's size.
    unsigned tupleSize() const;
    // Attributes from the top level down to this one: 1 at top level.
    unsigned depth() const;
    // The child of that long or short name, or null.
    AttributePtr child(std::string_view name) const;
    bool hasName(std::string_view name) const { return name == longName || name == shortName; }

    // Takes `child` as the last child.
    void addChild(const NewAttributePtr &child);
    // A child of an attribute that is still being declared, to fill it in.
    NewAttributePtr newChild(std::size_t place);
};

// How deep arrays and compounds may nest. Maya's own stay below; files that go deeper are refused.
constexpr unsigned kMaxAttributeDepth = 8;

// A new attribute of the type that addAttr calls `typeName` ("bool", "double3", "stringArray",
// "compound", ...; -at and -dt share the names). Tuples get their children, named NAME0 or, for
// three, NAMEX NAMEY NAMEZ. Null for a name that is no type.
NewAttributePtr makeAttribute(std::string_view longName, std::string_view shortName,
                              std::string_view typeName);

} // namespace host
