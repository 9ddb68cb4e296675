// SPDX-License-Identifier: Apache-2.0
// Starts and ends Maya inside a program of ours.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MLibrary
{
public:
    MLibrary();
    virtual ~MLibrary();
    static MStatus initialize(const char *applicationName, bool useBatchLicense = false);
    static MStatus initialize(bool wantScriptOutput, const char *applicationName,
                              bool useBatchLicense = false);
    static void cleanup(int exitStatus = 0, bool exitWhenDone = true);
};

MAYA_API_NAMESPACE_EXIT
