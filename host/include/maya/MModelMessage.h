// SPDX-License-Identifier: Apache-2.0
// Callbacks on changes of the active selection list.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MMessage.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MModelMessage : public MMessage
{
public:
    enum Message { kActiveListModified };
    static MCallbackId addCallback(Message message, MMessage::MBasicFunction func,
                                   void *clientData = nullptr, MStatus *ReturnStatus = nullptr);
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
