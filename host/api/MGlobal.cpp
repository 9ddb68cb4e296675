// SPDX-License-Identifier: Apache-2.0
// The state of Maya, messages and the selection. Running MEL is in MGlobalCommands.cpp.
#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

#include "api/process.h"
#include "api/selectionBody.h"
#include "api/status.h"
#include "api/text.h"

using host::answer;
using host::Process;
using host::SelectionItem;
using host::Session;

namespace
{

Session::Adjustment toAdjustment(MGlobal::ListAdjustment adjustment)
{
    switch (adjustment) {
    case MGlobal::kXORWithList:
        return Session::Adjustment::toggle;
    case MGlobal::kAddToList:
        return Session::Adjustment::add;
    case MGlobal::kRemoveFromList:
        return Session::Adjustment::remove;
    case MGlobal::kAddToHeadOfList:
        return Session::Adjustment::addToHead;
    case MGlobal::kReplaceList:
        break;
    }
    return Session::Adjustment::replace;
}

// Keeps a change of the lists off the undo queue.
class UndoPause
{
public:
    explicit UndoPause(Session &session) : session_(session) { session_.undo().suspend(); }
    ~UndoPause() { session_.undo().resume(); }
    UndoPause(const UndoPause &) = delete;
    UndoPause &operator=(const UndoPause &) = delete;

private:
    Session &session_;
};

// Runs `work` on the session; kFailure without one.
template <class Work>
MStatus withSession(Work work)
{
    Process *process = Process::current();
    if (!process)
        return MStatus::kFailure;
    return host::quietly(MStatus::kInvalidParameter, [&] { work(process->session()); });
}

template <class Value>
Value optionValue(const MString &name, bool *exists, Value fallback)
{
    Process *process = Process::current();
    if (exists)
        *exists = false;
    if (!process)
        return fallback;
    const auto place = process->optionVariables.find(host::toString(name));
    if (place == process->optionVariables.end())
        return fallback;
    const Value *value = std::get_if<Value>(&place->second);
    if (exists)
        *exists = value != nullptr;
    return value ? *value : fallback;
}

bool setOptionValue(const MString &name, Process::OptionValue value)
{
    Process *process = Process::current();
    if (!process || name.length() == 0)
        return false;
    process->optionVariables[host::toString(name)] = std::move(value);
    return true;
}

} // namespace

const char *MGlobal::className()
{
    return "MGlobal";
}
MString MGlobal::mayaVersion()
{
    return "2017";
}
int MGlobal::apiVersion()
{
    return MAYA_API_VERSION;
}

MGlobal::MMayaState MGlobal::mayaState(MStatus *ReturnStatus)
{
    Process *process = Process::current();
    if (!process)
        return answer(ReturnStatus, MStatus::kFailure, kLibraryApp);
    host::report(ReturnStatus);
    switch (process->session().mode()) {
    case Session::Mode::interactive:
        return kInteractive;
    case Session::Mode::batch:
        return kBatch;
    case Session::Mode::library:
        break;
    }
    return kLibraryApp;
}

MStatus MGlobal::getActiveSelectionList(MSelectionList &dest, bool orderedSelectionIfAvailable)
{
    return withSession([&](Session &session) {
        const host::SelectionList &list =
            orderedSelectionIfAvailable ? session.orderedSelection() : session.selection();
        host::setItems(dest, list.items());
    });
}

MStatus MGlobal::setActiveSelectionList(const MSelectionList &src, ListAdjustment listAdjustment)
{
    return withSession([&](Session &session) {
        const UndoPause pause(session);
        session.adjustSelection(host::itemsOf(src), toAdjustment(listAdjustment));
    });
}

MStatus MGlobal::getHiliteList(MSelectionList &dest)
{
    return withSession([&](Session &session) { host::setItems(dest, session.hilited().items()); });
}

MStatus MGlobal::setHiliteList(MSelectionList &src)
{
    return withSession([&](Session &session) {
        const UndoPause pause(session);
        host::SelectionList list;
        for (const SelectionItem &item : host::itemsOf(src))
            list.append(item);
        session.setHilited(std::move(list));
    });
}

// The twin of setActiveSelectionList that can be undone.
MStatus MGlobal::selectCommand(const MSelectionList &src, ListAdjustment listAdjustment)
{
    return withSession([&](Session &session) {
        session.undo().openChunk("select");
        session.adjustSelection(host::itemsOf(src), toAdjustment(listAdjustment));
        session.undo().closeChunk();
    });
}

MStatus MGlobal::selectByName(const MString &name, ListAdjustment listAdjustment)
{
    MSelectionList list;
    const MStatus status = getSelectionListByName(name, list);
    return status ? setActiveSelectionList(list, listAdjustment) : status;
}

MStatus MGlobal::clearSelectionList()
{
    return setActiveSelectionList(MSelectionList());
}

MStatus MGlobal::getSelectionListByName(const MString &name, MSelectionList &list)
{
    MSelectionList found;
    const MStatus status = found.add(name);
    if (status)
        list = found;
    return status;
}

bool MGlobal::trackSelectionOrderEnabled(MStatus *ReturnStatus)
{
    Process *process = Process::current();
    host::report(ReturnStatus, process ? MStatus::kSuccess : MStatus::kFailure);
    return process && process->session().isSelectionOrderTracked();
}

MStatus MGlobal::setTrackSelectionOrderEnabled(bool enable)
{
    return withSession([&](Session &session) { session.setSelectionOrderTracked(enable); });
}

void MGlobal::displayInfo(const MString &theMessage)
{
    host::showInfo(host::toString(theMessage));
}
void MGlobal::displayWarning(const MString &theWarning)
{
    host::showWarning(host::toString(theWarning));
}
void MGlobal::displayError(const MString &theError)
{
    host::showError(host::toString(theError));
}

bool MGlobal::isUndoing()
{
    Process *process = Process::current();
    return process && process->session().undo().isUndoing();
}

bool MGlobal::isRedoing()
{
    Process *process = Process::current();
    return process && process->session().undo().isRedoing();
}

int MGlobal::optionVarIntValue(const MString &name, bool *exists)
{
    return optionValue<int>(name, exists, 0);
}
double MGlobal::optionVarDoubleValue(const MString &name, bool *exists)
{
    return optionValue<double>(name, exists, 0.0);
}
MString MGlobal::optionVarStringValue(const MString &name, bool *exists)
{
    return host::toMString(optionValue<std::string>(name, exists, std::string()));
}
bool MGlobal::setOptionVarValue(const MString &name, int value)
{
    return setOptionValue(name, value);
}
bool MGlobal::setOptionVarValue(const MString &name, double value)
{
    return setOptionValue(name, value);
}
bool MGlobal::setOptionVarValue(const MString &name, MString value)
{
    return setOptionValue(name, host::toString(value));
}

MStatus MGlobal::deleteNode(MObject &object)
{
    const host::NodePtr node = host::nodeOf(object);
    Process *process = Process::current();
    if (!node || !process)
        return MStatus::kInvalidParameter;
    return host::loudly([&] {
        const host::RecordingPause pause(*node->scene());
        node->scene()->deleteNode(node);
        process->session().dropDeletedFromLists();
    });
}
