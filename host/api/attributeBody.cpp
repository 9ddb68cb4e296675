// SPDX-License-Identifier: Apache-2.0
#include "api/attributeBody.h"

#include "api/status.h"
#include "api/text.h"

namespace host
{

MFn::Type AttributeBody::apiType() const
{
    switch (attribute->kind) {
    case AttributeKind::boolean:
    case AttributeKind::integer:
    case AttributeKind::floating:
        return MFn::kNumericAttribute;
    case AttributeKind::real:
        return attribute->typeName == "double" ? MFn::kNumericAttribute : MFn::kUnitAttribute;
    case AttributeKind::enumeration:
        return MFn::kEnumAttribute;
    case AttributeKind::message:
        return MFn::kMessageAttribute;
    case AttributeKind::compound:
        return attribute->isTuple() ? MFn::kNumericAttribute : MFn::kCompoundAttribute;
    case AttributeKind::matrix:
        return attribute->isDataType ? MFn::kTypedAttribute : MFn::kMatrixAttribute;
    case AttributeKind::learned:
        return MFn::kGenericAttribute;
    case AttributeKind::string:
    case AttributeKind::stringList:
    case AttributeKind::numberList:
    case AttributeKind::opaque:
        break;
    }
    return MFn::kTypedAttribute;
}

bool AttributeBody::hasFn(MFn::Type type) const
{
    return type == MFn::kBase || type == MFn::kNamedObject || type == MFn::kAttribute ||
           type == apiType() || (type == MFn::kCompoundAttribute && attribute->isCompound());
}

bool AttributeBody::sameAs(const ObjectBody &other) const
{
    const auto *body = dynamic_cast<const AttributeBody *>(&other);
    return body && body->attribute == attribute;
}

MObject toObject(const AttributePtr &attribute)
{
    return attribute ? makeObject(std::make_shared<AttributeBody>(attribute)) : MObject();
}

AttributePtr attributeOf(const MObject &object)
{
    const auto body = bodyOf<AttributeBody>(object);
    return body ? body->attribute : nullptr;
}

AttributePtr attributeOf(const MFnBase &functionSet)
{
    const auto body = bodyOf<AttributeBody>(functionSet);
    return body ? body->attribute : nullptr;
}

NewAttributePtr draftOf(const MFnBase &functionSet)
{
    const auto body = bodyOf<AttributeBody>(functionSet);
    return body ? body->draft : nullptr;
}

NewAttributePtr newAttribute(const MString &longName, const MString &shortName,
                             const char *typeName)
{
    if (longName.length() == 0 || !typeName)
        return nullptr;
    const MString &brief = shortName.length() == 0 ? longName : shortName;
    return makeAttribute(view(longName), view(brief), typeName);
}

MObject attachNew(MFnBase &functionSet, const NewAttributePtr &attribute, MStatus *status)
{
    if (!attribute)
        return answer(status, MStatus::kInvalidParameter, MObject());
    const MObject object = makeObject(std::make_shared<AttributeBody>(attribute));
    report(status, functionSet.setObject(object));
    return object;
}

} // namespace host
