// SPDX-License-Identifier: Apache-2.0
// Callbacks: the types of their functions, and how they are removed.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

typedef MUintPtrSz MCallbackId;

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MMessage
{
public:
    typedef void (*MBasicFunction)(void *clientData);
    typedef void (*MStringFunction)(const MString &str, void *clientData);
    typedef void (*MNodeFunction)(MObject &node, void *clientData);
    static MStatus removeCallback(MCallbackId id);
    static MStatus removeCallbacks(MCallbackIdArray &ids);
    static MCallbackId currentCallbackId(MStatus *ReturnStatus = nullptr);
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
