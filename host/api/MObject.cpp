// SPDX-License-Identifier: Apache-2.0
#include <maya/MObject.h>

#include "api/objectBody.h"

host::ObjectBody::~ObjectBody() = default;

MObject host::makeObject(std::shared_ptr<ObjectBody> body)
{
    MObject object;
    ApiAccess::body(object) = std::move(body);
    return object;
}

MObject MObject::kNullObj;

MObject::MObject() = default;
MObject::MObject(const MObject &other) = default;
MObject::~MObject() = default;
MObject &MObject::operator=(const MObject &other) = default;

bool MObject::hasFn(MFn::Type fs) const
{
    return body_ && body_->hasFn(fs);
}
bool MObject::isNull() const
{
    return !body_;
}
MFn::Type MObject::apiType() const
{
    return body_ ? body_->apiType() : MFn::kInvalid;
}
const char *MObject::apiTypeStr() const
{
    return host::kindName(apiType());
}

bool MObject::operator==(const MObject &other) const
{
    return body_ == other.body_ || (body_ && other.body_ && body_->sameAs(*other.body_));
}

bool MObject::operator!=(const MObject &other) const
{
    return !(*this == other);
}
