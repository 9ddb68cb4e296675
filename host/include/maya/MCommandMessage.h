// SPDX-License-Identifier: Apache-2.0
// Callbacks on every line that Maya shows in the Script Editor.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MMessage.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MCommandMessage : public MMessage
{
public:
    enum MessageType { kHistory, kDisplay, kInfo, kWarning, kError, kResult, kStackTrace };
    typedef void (*MMessageFunction)(const MString &message,
                                     MCommandMessage::MessageType messageType, void *clientData);
    static MCallbackId addCommandCallback(MMessage::MStringFunction func,
                                          void *clientData = nullptr,
                                          MStatus *ReturnStatus = nullptr);
    static MCallbackId addCommandOutputCallback(MCommandMessage::MMessageFunction func,
                                                void *clientData = nullptr,
                                                MStatus *ReturnStatus = nullptr);
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
