// SPDX-License-Identifier: Apache-2.0
// The arguments of one call of a command, flags included.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MArgList
{
public:
    static const unsigned int kInvalidArgIndex;
    MArgList();
    MArgList(const MArgList &);
    ~MArgList();
    MArgList &operator=(const MArgList &);
    unsigned int length(MStatus *ReturnStatus = nullptr) const;
    bool asBool(unsigned int index, MStatus *ret = nullptr) const;
    int asInt(unsigned int index, MStatus *ret = nullptr) const;
    double asDouble(unsigned int index, MStatus *ret = nullptr) const;
    MString asString(unsigned int index, MStatus *ret = nullptr) const;
    unsigned int flagIndex(const char *shortFlag, const char *longFlag = nullptr) const;
    MStatus addArg(bool arg);
    MStatus addArg(int arg);
    MStatus addArg(double arg);
    MStatus addArg(const MString &arg);
    MStatus get(unsigned int index, bool &) const;
    MStatus get(unsigned int index, int &) const;
    MStatus get(unsigned int index, double &) const;
    MStatus get(unsigned int index, MString &) const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<host::ArgumentValues> values_; // shared between copies until one changes
};

MAYA_API_NAMESPACE_EXIT
