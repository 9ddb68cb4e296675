// SPDX-License-Identifier: Apache-2.0
#include <maya/MCallbackIdArray.h>
#include <maya/MCommandMessage.h>
#include <maya/MEventMessage.h>
#include <maya/MMessage.h>
#include <maya/MModelMessage.h>
#include <maya/MString.h>

#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::answer;
using host::Process;

namespace
{

constexpr MCallbackId kNoCallback = 0;

// Adds a callback through one of the functions of Callbacks; id 0 and a failure when it refuses.
template <class Add>
MCallbackId addCallback(bool hasFunction, MStatus *status, Add add)
{
    Process *process = Process::current();
    if (!process)
        return answer(status, MStatus::kFailure, kNoCallback);
    const MCallbackId id = hasFunction ? add(process->callbacks()) : kNoCallback;
    return answer(status, id ? MStatus::kSuccess : MStatus::kInvalidParameter, id);
}

} // namespace

const char *MMessage::className()
{
    return "MMessage";
}

MStatus MMessage::removeCallback(MCallbackId id)
{
    Process *process = Process::current();
    return process && process->callbacks().remove(id) ? MStatus::kSuccess : MStatus::kFailure;
}

MStatus MMessage::removeCallbacks(MCallbackIdArray &ids)
{
    MStatus status;
    for (unsigned int i = 0; i < ids.length(); ++i)
        if (!removeCallback(ids[i]))
            status = MStatus::kFailure;
    return status;
}

MCallbackId MMessage::currentCallbackId(MStatus *ReturnStatus)
{
    Process *process = Process::current();
    const MCallbackId id = process ? process->callbacks().current() : kNoCallback;
    return answer(ReturnStatus, id ? MStatus::kSuccess : MStatus::kFailure, id);
}

const char *MEventMessage::className()
{
    return "MEventMessage";
}

MCallbackId MEventMessage::addEventCallback(const MString &event, MMessage::MBasicFunction func,
                                            void *clientData, MStatus *ReturnStatus)
{
    return addCallback(func, ReturnStatus, [&](host::Callbacks &callbacks) {
        return callbacks.addEvent(host::toString(event), func, clientData);
    });
}

MStatus MEventMessage::getEventNames(MStringArray &names)
{
    MStringArray list;
    for (const std::string &name : host::Events::names())
        list.append(host::toMString(name));
    names = list;
    return MStatus::kSuccess;
}

const char *MModelMessage::className()
{
    return "MModelMessage";
}

MCallbackId MModelMessage::addCallback(Message message, MMessage::MBasicFunction func,
                                       void *clientData, MStatus *ReturnStatus)
{
    const bool isKnown = message == kActiveListModified;
    return ::addCallback(func && isKnown, ReturnStatus, [&](host::Callbacks &callbacks) {
        return callbacks.addEvent("SelectionChanged", func, clientData);
    });
}

const char *MCommandMessage::className()
{
    return "MCommandMessage";
}

MCallbackId MCommandMessage::addCommandCallback(MMessage::MStringFunction func, void *clientData,
                                                MStatus *ReturnStatus)
{
    return addCallback(func, ReturnStatus, [&](host::Callbacks &callbacks) {
        return callbacks.addCommand(func, clientData);
    });
}

MCallbackId MCommandMessage::addCommandOutputCallback(MCommandMessage::MMessageFunction func,
                                                      void *clientData, MStatus *ReturnStatus)
{
    return addCallback(func, ReturnStatus, [&](host::Callbacks &callbacks) {
        return callbacks.addOutput(func, clientData);
    });
}
