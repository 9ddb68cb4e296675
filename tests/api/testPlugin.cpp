// SPDX-License-Identifier: Apache-2.0
// A plug-in for tests: one command that remembers a number, and one callback.
#include <maya/MArgList.h>
#include <maya/MArgParser.h>
#include <maya/MEventMessage.h>
#include <maya/MFnPlugin.h>
#include <maya/MGlobal.h>
#include <maya/MPxCommand.h>
#include <maya/MSyntax.h>

namespace
{

int number = 0;
constexpr int kUnlucky = 13;   // whose undo fails
constexpr int kForgetful = 99; // leaves the callback behind
MCallbackId callback = 0;

class numberCommand : public MPxCommand
{
public:
    static void *create() { return new numberCommand; }
    static MSyntax makeSyntax()
    {
        MSyntax syntax;
        syntax.addFlag("-s", "-setTo", MSyntax::kLong);
        syntax.addFlag("-s", "-second");
        syntax.addFlag("-n", "-nested");
        syntax.addFlag("-f", "-fail");
        return syntax;
    }

    MStatus doIt(const MArgList &arguments) override
    {
        MStatus status;
        const MArgParser parser(syntax(), arguments, &status);
        if (!status || parser.isFlagSet("-fail"))
            return MStatus::kFailure;
        if (parser.isFlagSet("-second"))
            setResult("second");
        else
            setResult(number);
        isNested_ = parser.isFlagSet("nested");
        isEdit_ = parser.getFlagArgument("-s", 0, wanted_);
        return isEdit_ ? redoIt() : MStatus(MStatus::kSuccess);
    }
    MStatus redoIt() override
    {
        before_ = number;
        number = wanted_;
        if (isNested_)
            MGlobal::executeCommand("setAttr persp.tx 1", false, true);
        return MStatus::kSuccess;
    }
    MStatus undoIt() override
    {
        number = before_;
        return wanted_ == kUnlucky ? MStatus::kFailure : MStatus::kSuccess;
    }
    bool isUndoable() const override { return isEdit_; }

private:
    int wanted_ = 0;
    int before_ = 0;
    bool isEdit_ = false;
    bool isNested_ = false;
};

void ignore(void *) {}

} // namespace

MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Korvex tests", "1.5", "Any");
    callback = MEventMessage::addEventCallback("SelectionChanged", ignore);
    return plugin.registerCommand("number", numberCommand::create, numberCommand::makeSyntax);
}

MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    if (number != kForgetful)
        MMessage::removeCallback(callback);
    return plugin.deregisterCommand("number");
}
