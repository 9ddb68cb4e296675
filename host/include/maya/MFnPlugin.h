// SPDX-License-Identifier: Apache-2.0
// The plug-in as seen by its own entry points: who made it, and the commands that it registers.
// Stands in for Maya's header of this name; declarations only. Include it in one source file of a
// plug-in: it defines the string `MApiVersion`, and declares both entry points.
#pragma once

#include <maya/MApiVersion.h>
#include <maya/MFnBase.h>
#include <maya/MObject.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnPlugin : public MFnBase
{
public:
    MFnPlugin();
    MFnPlugin(MObject &object, const char *vendor = "Unknown", const char *version = "Unknown",
              const char *requiredApiVersion = "Any", MStatus *ReturnStatus = nullptr);
    virtual ~MFnPlugin();
    virtual MFn::Type type() const;
    MString vendor(MStatus *ReturnStatus = nullptr) const;
    MString version(MStatus *ReturnStatus = nullptr) const;
    MString apiVersion(MStatus *ReturnStatus = nullptr) const;
    MString name(MStatus *ReturnStatus = nullptr) const;
    MString loadPath(MStatus *ReturnStatus = nullptr) const;
    MStatus setName(const MString &newName, bool allowRename = true);
    MStatus setVersion(const MString &newVersion);
    MStatus registerCommand(const MString &commandName, MCreatorFunction creatorFunction,
                            MCreateSyntaxFunction createSyntaxFunction = nullptr);
    MStatus deregisterCommand(const MString &commandName);
    static MObject findPlugin(const MString &pluginName);
    static const char *className();

private:
    MFnPlugin(const MObject &object, const char *vendor = "Unknown",
              const char *version = "Unknown", const char *requiredApiVersion = "Any",
              MStatus *ReturnStatus = nullptr) = delete;
    MFnPlugin &operator=(const MFnPlugin &) = delete;
    MFnPlugin *operator&() const = delete;
    MFnPlugin *operator&() = delete;
};

MAYA_API_NAMESPACE_EXIT

PLUGIN_EXPORT MStatus initializePlugin(MObject obj);
PLUGIN_EXPORT MStatus uninitializePlugin(MObject obj);
