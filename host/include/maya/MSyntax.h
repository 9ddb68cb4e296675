// SPDX-License-Identifier: Apache-2.0
// The flags and objects that a command accepts.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MSyntax
{
public:
    enum MArgType {
        kInvalidArgType,
        kNoArg,
        kBoolean,
        kLong,
        kDouble,
        kString,
        kUnsigned,
        kDistance,
        kAngle,
        kTime,
        kSelectionItem,
        kLastArgType
    };
    enum MObjectFormat {
        kInvalidObjectFormat,
        kNone,
        kStringObjects,
        kSelectionList,
        kLastObjectFormat
    };
    MSyntax();
    MSyntax(const MSyntax &);
    virtual ~MSyntax();
    MSyntax &operator=(const MSyntax &);
    MStatus addFlag(const char *shortName, const char *longName, MArgType argType1 = kNoArg,
                    MArgType argType2 = kNoArg, MArgType argType3 = kNoArg,
                    MArgType argType4 = kNoArg, MArgType argType5 = kNoArg,
                    MArgType argType6 = kNoArg);
    MStatus makeFlagMultiUse(const char *flag);
    MStatus makeFlagQueryWithFullArgs(const char *flag, bool queryArgsAreOptional);
    MStatus addArg(MArgType arg);
    void useSelectionAsDefault(bool useSelectionList = false);
    MStatus setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects = 0);
    MStatus setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects,
                          unsigned int maximumObjects);
    void setMinObjects(unsigned int);
    void setMaxObjects(unsigned int);
    void enableQuery(bool supportsQuery = true);
    void enableEdit(bool supportsEdit = true);
    bool canQuery() const;
    bool canEdit() const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<host::SyntaxTable> table_; // shared between copies until one changes
};

MAYA_API_NAMESPACE_EXIT
