// SPDX-License-Identifier: Apache-2.0
// Name, type, attributes and plugs of any node. Stands in for Maya's header of this name;
// declarations only. findPlug without the bool is deleted here: Maya deprecated it in 2019, and a
// status pointer in its place would silently convert to the bool.
#pragma once

#include <maya/MFnBase.h>
#include <maya/MObject.h>
#include <maya/MString.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnDependencyNode : public MFnBase
{
    declareMFn(MFnDependencyNode, MFnBase);

public:
    MObject create(const MString &type, MStatus *ReturnStatus = nullptr);
    MObject create(const MString &type, const MString &name, MStatus *ReturnStatus = nullptr);
    MString typeName(MStatus *ReturnStatus = nullptr) const;
    MString name(MStatus *ReturnStatus = nullptr) const;
    MString setName(const MString &name, bool createNamespace = false,
                    MStatus *ReturnStatus = nullptr);
    MStatus getConnections(MPlugArray &array) const;
    unsigned int attributeCount(MStatus *ReturnStatus = nullptr) const;
    MObject attribute(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    MObject attribute(const MString &attrName, MStatus *ReturnStatus = nullptr) const;
    MPlug findPlug(const MObject &attr, bool wantNetworkedPlug,
                   MStatus *ReturnStatus = nullptr) const;
    MPlug findPlug(const MString &attrName, bool wantNetworkedPlug,
                   MStatus *ReturnStatus = nullptr) const;
    MPlug findPlug(const MObject &attr, MStatus *ReturnStatus = nullptr) const = delete;
    MPlug findPlug(const MString &attrName, MStatus *ReturnStatus = nullptr) const = delete;
    MStatus addAttribute(const MObject &attr);
    MStatus removeAttribute(const MObject &attr);
    bool hasAttribute(const MString &name, MStatus *ReturnStatus = nullptr) const;
    bool isFromReferencedFile(MStatus *ReturnStatus = nullptr) const;
    bool isLocked(MStatus *ReturnStatus = nullptr) const;
    MStatus setLocked(bool locked);
    declareMFnConstConstructor(MFnDependencyNode, MFnBase);
};

MAYA_API_NAMESPACE_EXIT
