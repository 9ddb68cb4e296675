// SPDX-License-Identifier: Apache-2.0
#include "scene/attribute.h"

#include <algorithm>

namespace host
{

namespace
{

struct TypeRow {
    std::string_view name;
    AttributeKind kind;
    unsigned tupleSize = 0;
    std::string_view elementType = {}; // of a tuple
};

// The names that addAttr takes for -at and -dt, and what setAttr takes for -type.
constexpr TypeRow kTypes[] = {
    {"bool", AttributeKind::boolean},
    {"byte", AttributeKind::integer},
    {"char", AttributeKind::integer},
    {"short", AttributeKind::integer},
    {"long", AttributeKind::integer},
    {"int", AttributeKind::integer},
    {"int64", AttributeKind::integer},
    {"float", AttributeKind::floating},
    {"double", AttributeKind::real},
    {"doubleLinear", AttributeKind::real},
    {"doubleAngle", AttributeKind::real},
    {"time", AttributeKind::real},
    {"enum", AttributeKind::enumeration},
    {"message", AttributeKind::message},
    {"compound", AttributeKind::compound},
    {"string", AttributeKind::string},
    {"matrix", AttributeKind::matrix},
    {"fltMatrix", AttributeKind::matrix},
    {"stringArray", AttributeKind::stringList},
    {"componentList", AttributeKind::stringList},
    {"doubleArray", AttributeKind::numberList},
    {"floatArray", AttributeKind::numberList},
    {"Int32Array", AttributeKind::numberList},
    {"pointArray", AttributeKind::numberList},
    {"vectorArray", AttributeKind::numberList},
    {"double2", AttributeKind::compound, 2, "double"},
    {"double3", AttributeKind::compound, 3, "double"},
    {"double4", AttributeKind::compound, 4, "double"},
    {"float2", AttributeKind::compound, 2, "float"},
    {"float3", AttributeKind::compound, 3, "float"},
    {"long2", AttributeKind::compound, 2, "long"},
    {"long3", AttributeKind::compound, 3, "long"},
    {"short2", AttributeKind::compound, 2, "short"},
    {"short3", AttributeKind::compound, 3, "short"},
    {"reflectance", AttributeKind::compound, 3, "float"},
    {"spectrum", AttributeKind::compound, 3, "float"},
    {"mesh", AttributeKind::opaque},
    {"nurbsCurve", AttributeKind::opaque},
    {"nurbsSurface", AttributeKind::opaque},
    {"lattice", AttributeKind::opaque},
    {"polyFaces", AttributeKind::opaque},
    {"dataPolyComponent", AttributeKind::opaque},
    {"attributeAlias", AttributeKind::opaque},
    {"dataReferenceEdits", AttributeKind::opaque},
    {"generic", AttributeKind::opaque},
};

const TypeRow *findType(std::string_view name)
{
    const auto row = std::find_if(std::begin(kTypes), std::end(kTypes),
                                  [name](const TypeRow &type) { return type.name == name; });
    return row == std::end(kTypes) ? nullptr : row;
}

} // namespace

bool Attribute::isTuple() const
{
    const TypeRow *type = findType(typeName);
    if (!isCompound() || !type || type->tupleSize != children.size())
        return false;
    return std::all_of(children.begin(), children.end(), [](const AttributePtr &child) {
        return child->isNumber() && !child->isArray;
    });
}

bool Attribute::isPackedArray() const
{
    return isArray && (isNumber() || isTuple());
}

unsigned Attribute::tupleSize() const
{
    return isCompound() ? unsigned(children.size()) : 1;
}

unsigned Attribute::depth() const
{
    unsigned depth = 1;
    for (const Attribute *above = parent; above; above = above->parent)
        ++depth;
    return depth;
}

AttributePtr Attribute::child(std::string_view name) const
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [name](const AttributePtr &c) { return c->hasName(name); });
    return found == children.end() ? nullptr : *found;
}

void Attribute::addChild(const NewAttributePtr &child)
{
    children.push_back(child);
    child->parent = this;
}

NewAttributePtr Attribute::newChild(std::size_t place)
{
    return std::const_pointer_cast<Attribute>(children[place]);
}

NewAttributePtr makeAttribute(std::string_view longName, std::string_view shortName,
                              std::string_view typeName)
{
    const TypeRow *type = findType(typeName);
    if (!type)
        return nullptr;
    auto attribute = std::make_shared<Attribute>();
    attribute->longName = longName;
    attribute->shortName = shortName;
    attribute->kind = type->kind;
    attribute->typeName = typeName;
    static constexpr const char *kLongSuffix[] = {"X", "Y", "Z"};
    static constexpr const char *kShortSuffix[] = {"x", "y", "z"};
    for (unsigned i = 0; i < type->tupleSize; ++i) {
        const bool isVector = type->tupleSize == 3;
        const std::string number = std::to_string(i);
        attribute->addChild(
            makeAttribute(attribute->longName + (isVector ? kLongSuffix[i] : number.c_str()),
                          attribute->shortName + (isVector ? kShortSuffix[i] : number.c_str()),
                          type->elementType));
    }
    return attribute;
}

} // namespace host
