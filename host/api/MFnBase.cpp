// SPDX-License-Identifier: Apache-2.0
#include <maya/MFnBase.h>

#include "api/objectBody.h"
#include "api/status.h"

using host::answer;

MFnBase::MFnBase() = default;
MFnBase::~MFnBase() = default;
MFn::Type MFnBase::type() const
{
    return MFn::kBase;
}
const char *MFnBase::className()
{
    return "MFnBase";
}

bool MFnBase::hasObj(MFn::Type kind) const
{
    return kind == type() || (body_ && body_->apiType() == kind);
}

bool MFnBase::hasObj(const MObject &object) const
{
    return object.hasFn(type());
}

MObject MFnBase::object(MStatus *ReturnStatus) const
{
    return answer(ReturnStatus, body_ ? MStatus::kSuccess : MStatus::kFailure,
                  host::makeObject(body_));
}

MStatus MFnBase::setObject(MObject &object)
{
    return setObject(static_cast<const MObject &>(object));
}

MStatus MFnBase::setObject(const MObject &object)
{
    if (!object.hasFn(type())) {
        body_.reset();
        return MStatus::kInvalidParameter;
    }
    body_ = host::ApiAccess::body(object);
    return MStatus::kSuccess;
}

bool MFnBase::objectChanged(MFn::Type, MStatus *status)
{
    return answer(status, MStatus::kSuccess, true);
}
