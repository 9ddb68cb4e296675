// SPDX-License-Identifier: Apache-2.0
// The arguments of one call, read by the rules of an MSyntax. Stands in for Maya's header of this
// name; declarations only. Prints the error itself when the arguments do not fit.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MArgParser
{
public:
    MArgParser();
    MArgParser(const MSyntax &syntax, const MArgList &argList, MStatus *ReturnStatus = nullptr);
    virtual ~MArgParser();
    bool isFlagSet(const char *flag, MStatus *ReturnStatus = nullptr) const;
    bool isEdit(MStatus *ReturnStatus = nullptr) const;
    bool isQuery(MStatus *ReturnStatus = nullptr) const;
    unsigned int numberOfFlagsUsed() const;
    unsigned int numberOfFlagUses(const char *flag) const;
    MStatus getFlagArgument(const char *flag, unsigned int index, bool &result) const;
    MStatus getFlagArgument(const char *flag, unsigned int index, int &result) const;
    MStatus getFlagArgument(const char *flag, unsigned int index, double &result) const;
    MStatus getFlagArgument(const char *flag, unsigned int index, MString &result) const;
    bool flagArgumentBool(const char *flag, unsigned int index,
                          MStatus *ReturnStatus = nullptr) const;
    int flagArgumentInt(const char *flag, unsigned int index,
                        MStatus *ReturnStatus = nullptr) const;
    double flagArgumentDouble(const char *flag, unsigned int index,
                              MStatus *ReturnStatus = nullptr) const;
    MString flagArgumentString(const char *flag, unsigned int index,
                               MStatus *ReturnStatus = nullptr) const;
    MStatus getCommandArgument(unsigned int index, bool &result) const;
    MStatus getCommandArgument(unsigned int index, int &result) const;
    MStatus getCommandArgument(unsigned int index, double &result) const;
    MStatus getCommandArgument(unsigned int index, MString &result) const;
    MStatus getObjects(MStringArray &result) const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<const host::ParsedArguments> parsed_;
};

MAYA_API_NAMESPACE_EXIT
