// SPDX-License-Identifier: Apache-2.0
// An MArgParser that also gives the objects of the call as a selection list.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MArgParser.h>
#include <maya/MStatus.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MArgDatabase : public MArgParser
{
public:
    MArgDatabase();
    MArgDatabase(const MSyntax &syntax, const MArgList &argList, MStatus *ReturnStatus = nullptr);
    virtual ~MArgDatabase();
    using MArgParser::getCommandArgument;
    using MArgParser::getFlagArgument;
    using MArgParser::getObjects;
    MStatus getFlagArgument(const char *flag, unsigned int index, MSelectionList &result) const;
    MStatus getCommandArgument(unsigned int index, MSelectionList &result) const;
    MStatus getObjects(MSelectionList &result) const;
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
