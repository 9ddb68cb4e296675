// SPDX-License-Identifier: Apache-2.0
// Callbacks on named events such as SelectionChanged.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MMessage.h>
#include <maya/MStringArray.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MEventMessage : public MMessage
{
public:
    static MCallbackId addEventCallback(const MString &event, MMessage::MBasicFunction func,
                                        void *clientData = nullptr,
                                        MStatus *ReturnStatus = nullptr);
    static MStatus getEventNames(MStringArray &names);
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
