// SPDX-License-Identifier: Apache-2.0
// The function sets that make attributes.
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MString.h>

#include <algorithm>

#include "api/attributeBody.h"
#include "api/dataBody.h"
#include "api/functionSet.h"

using host::answer;
using host::AttributePtr;
using host::NewAttributePtr;

namespace
{

template <class Type>
struct TypeName {
    Type type;
    const char *name; // as addAttr's -at and -dt have it
};

constexpr TypeName<MFnData::Type> kDataTypes[] = {
    {MFnData::kString, "string"},
    {MFnData::kStringArray, "stringArray"},
    {MFnData::kMatrix, "matrix"},
    {MFnData::kDoubleArray, "doubleArray"},
    {MFnData::kFloatArray, "floatArray"},
    {MFnData::kIntArray, "Int32Array"},
    {MFnData::kPointArray, "pointArray"},
    {MFnData::kVectorArray, "vectorArray"},
    {MFnData::kComponentList, "componentList"},
    {MFnData::kMesh, "mesh"},
    {MFnData::kLattice, "lattice"},
    {MFnData::kNurbsCurve, "nurbsCurve"},
    {MFnData::kNurbsSurface, "nurbsSurface"},
};

constexpr TypeName<MFnNumericData::Type> kNumericTypes[] = {
    {MFnNumericData::kBoolean, "bool"},    {MFnNumericData::kByte, "byte"},
    {MFnNumericData::kChar, "char"},       {MFnNumericData::kShort, "short"},
    {MFnNumericData::k2Short, "short2"},   {MFnNumericData::k3Short, "short3"},
    {MFnNumericData::kInt, "long"},        {MFnNumericData::k2Int, "long2"},
    {MFnNumericData::k3Int, "long3"},      {MFnNumericData::kInt64, "int64"},
    {MFnNumericData::kFloat, "float"},     {MFnNumericData::k2Float, "float2"},
    {MFnNumericData::k3Float, "float3"},   {MFnNumericData::kDouble, "double"},
    {MFnNumericData::k2Double, "double2"}, {MFnNumericData::k3Double, "double3"},
    {MFnNumericData::k4Double, "double4"},
};

template <class Type, std::size_t size>
const char *nameOf(const TypeName<Type> (&table)[size], Type type)
{
    for (const TypeName<Type> &row : table)
        if (row.type == type)
            return row.name;
    return nullptr;
}

template <class Type, std::size_t size>
Type typeOf(const TypeName<Type> (&table)[size], const std::string &name)
{
    for (const TypeName<Type> &row : table)
        if (row.name == name)
            return row.type;
    return Type::kInvalid;
}

MStatus setDefaultNumber(const MFnBase &functionSet, double value)
{
    const NewAttributePtr attribute = host::draftOf(functionSet);
    if (!attribute)
        return MStatus::kFailure;
    attribute->defaultNumber = value;
    return MStatus::kSuccess;
}

} // namespace

DEFINE_FUNCTION_SET(MFnTypedAttribute, MFn::kTypedAttribute)

// Default data other than none is refused: the host's attributes have no place for it, and Maya
// would not save it either.
MObject MFnTypedAttribute::create(const MString &fullName, const MString &briefName,
                                  MFnData::Type type, MObject defaultData, MStatus *ReturnStatus)
{
    const auto data = host::bodyOf<host::StringBody>(defaultData);
    if (!defaultData.isNull() && !(data && data->string.empty()))
        return answer(ReturnStatus, MStatus::kNotImplemented, MObject());
    const NewAttributePtr attribute =
        host::newAttribute(fullName, briefName, nameOf(kDataTypes, type));
    if (attribute)
        attribute->isDataType = true;
    return host::attachNew(*this, attribute, ReturnStatus);
}

MFnData::Type MFnTypedAttribute::attrType(MStatus *ReturnStatus) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(ReturnStatus, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? typeOf(kDataTypes, attribute->typeName) : MFnData::kInvalid;
}

DEFINE_FUNCTION_SET(MFnNumericAttribute, MFn::kNumericAttribute)

MObject MFnNumericAttribute::create(const MString &fullName, const MString &briefName,
                                    MFnNumericData::Type unitType, double defaultValue,
                                    MStatus *ReturnStatus)
{
    const NewAttributePtr attribute =
        host::newAttribute(fullName, briefName, nameOf(kNumericTypes, unitType));
    if (attribute) {
        attribute->defaultNumber = defaultValue;
        for (std::size_t i = 0; i < attribute->children.size(); ++i)
            attribute->newChild(i)->defaultNumber = defaultValue;
    }
    if (attribute && unitType == MFnNumericData::kBoolean) {
        attribute->minimum = 0.0;
        attribute->maximum = 1.0;
    }
    return host::attachNew(*this, attribute, ReturnStatus);
}

MFnNumericData::Type MFnNumericAttribute::unitType(MStatus *ReturnStatus) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(ReturnStatus, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? typeOf(kNumericTypes, attribute->typeName) : MFnNumericData::kInvalid;
}

MStatus MFnNumericAttribute::setMin(double value)
{
    const NewAttributePtr attribute = host::draftOf(*this);
    if (!attribute)
        return MStatus::kFailure;
    attribute->minimum = value;
    return MStatus::kSuccess;
}

MStatus MFnNumericAttribute::setMax(double value)
{
    const NewAttributePtr attribute = host::draftOf(*this);
    if (!attribute)
        return MStatus::kFailure;
    attribute->maximum = value;
    return MStatus::kSuccess;
}

MStatus MFnNumericAttribute::setDefault(bool value)
{
    return setDefaultNumber(*this, value);
}
MStatus MFnNumericAttribute::setDefault(int value)
{
    return setDefaultNumber(*this, value);
}
MStatus MFnNumericAttribute::setDefault(double value)
{
    return setDefaultNumber(*this, value);
}

DEFINE_FUNCTION_SET(MFnCompoundAttribute, MFn::kCompoundAttribute)

MObject MFnCompoundAttribute::create(const MString &full, const MString &brief,
                                     MStatus *ReturnStatus)
{
    return host::attachNew(*this, host::newAttribute(full, brief, "compound"), ReturnStatus);
}

// A child belongs to one compound, and comes before the compound is added to a node.
MStatus MFnCompoundAttribute::addChild(const MObject &child)
{
    const auto body = host::bodyOf<host::AttributeBody>(*this);
    const auto childBody = host::bodyOf<host::AttributeBody>(child);
    if (!body)
        return MStatus::kFailure;
    if (!childBody || !childBody->draft || childBody->attribute->parent ||
        childBody->attribute == body->attribute)
        return MStatus::kInvalidParameter;
    if (!body->draft)
        return MStatus::kFailure;
    body->draft->addChild(childBody->draft);
    return MStatus::kSuccess;
}

MStatus MFnCompoundAttribute::removeChild(const MObject &child)
{
    const NewAttributePtr compound = host::draftOf(*this);
    if (!compound)
        return MStatus::kFailure;
    auto &children = compound->children;
    const auto place = std::find(children.begin(), children.end(), host::attributeOf(child));
    if (place == children.end())
        return MStatus::kInvalidParameter;
    compound->newChild(std::size_t(place - children.begin()))->parent = nullptr;
    children.erase(place);
    return MStatus::kSuccess;
}

unsigned int MFnCompoundAttribute::numChildren(MStatus *ReturnStatus) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(ReturnStatus, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? static_cast<unsigned int>(attribute->children.size()) : 0;
}

MObject MFnCompoundAttribute::child(unsigned int index, MStatus *ReturnStatus) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    if (!attribute)
        return answer(ReturnStatus, MStatus::kFailure, MObject());
    if (index >= attribute->children.size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    return answer(ReturnStatus, MStatus::kSuccess, host::toObject(attribute->children[index]));
}
