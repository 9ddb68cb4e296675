// SPDX-License-Identifier: Apache-2.0
// The result of MEL when its type is not known beforehand.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MCommandResult
{
public:
    enum Type {
        kInvalid,
        kInt,
        kIntArray,
        kDouble,
        kDoubleArray,
        kString,
        kStringArray,
        kVector,
        kVectorArray,
        kMatrix,
        kMatrixArray
    };
    MCommandResult(MStatus *ReturnStatus = nullptr);
    virtual ~MCommandResult();
    Type resultType(MStatus *ReturnStatus = nullptr) const;
    MStatus getResult(int &result) const;
    MStatus getResult(MIntArray &result) const;
    MStatus getResult(double &result) const;
    MStatus getResult(MDoubleArray &result) const;
    MStatus getResult(MString &result) const;
    MStatus getResult(MStringArray &result) const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<const host::ResultBody> body_;
};

MAYA_API_NAMESPACE_EXIT
