// SPDX-License-Identifier: Apache-2.0
// Opens, saves and imports scene files.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFileIO
{
public:
    enum ReferenceMode { kLoadDefault, kLoadAllReferences, kLoadNoReferences };
    static MString currentFile();
    static MStatus setCurrentFile(const MString &fileName);
    static MString fileType();
    static MStatus newFile(bool force = false);
    static MStatus open(const MString &fileName, const char *type = nullptr, bool force = false,
                        ReferenceMode refMode = kLoadDefault, bool ignoreVersion = false);
    static MStatus save(bool force = false);
    static MStatus saveAs(const MString &fileName, const char *type = nullptr, bool force = false);
    static MStatus importFile(const MString &fileName, const char *type = nullptr,
                              bool preserveReferences = false, const char *nameSpace = nullptr,
                              bool ignoreVersion = false);
    static MStatus exportAll(const MString &fileName, const char *type = nullptr,
                             bool preserveReferences = false);
    static bool isReadingFile();
    static bool isWritingFile();
    static bool isOpeningFile();
    static bool isNewingFile();
};

MAYA_API_NAMESPACE_EXIT
