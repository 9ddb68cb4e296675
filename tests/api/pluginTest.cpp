// SPDX-License-Identifier: Apache-2.0
// A plug-in's command between MEL and the undo queue.
#include <maya/MCommandResult.h>
#include <maya/MGlobal.h>

#include "support/mayaSession.h"

namespace
{

class pluginCommand : public MayaSession
{
protected:
    pluginCommand() { mel("loadPlugin \"" API_TEST_PLUGIN "\"; flushUndo"); }
    ~pluginCommand() override
    {
        mel("flushUndo");
        if (isLoaded_)
            mel("unloadPlugin apiTestPlugin");
    }
    static int number()
    {
        int value = -1;
        EXPECT_TRUE(MGlobal::executeCommand("number", value));
        return value;
    }
    static std::string undoItems() { return melString("undoInfo -q"); }

    bool isLoaded_ = true;
};

} // namespace

TEST_F(pluginCommand, isUndoneAndRedone)
{
    mel("number -setTo 5");
    EXPECT_EQ(number(), 5);
    mel("undo");
    EXPECT_EQ(number(), 0);
    EXPECT_EQ(melString("undoInfo -q -redoName").empty(), false) << "asking leaves the queue alone";
    mel("redo");
    EXPECT_EQ(number(), 5);
    EXPECT_TRUE(MGlobal::executeCommand("number -s 6", false, false));
    EXPECT_EQ(undoItems(), "1") << "run without undo: done, not kept";
    EXPECT_EQ(number(), 6);
}

TEST_F(pluginCommand, takesOneUndoForWhatItRanInside)
{
    mel("setAttr persp.tx 7; flushUndo");
    mel("number -setTo 5 -nested");
    EXPECT_EQ(undoItems(), "1");
    EXPECT_EQ(melString("getAttr persp.tx"), "1");
    mel("undo");
    EXPECT_EQ(number(), 0);
    EXPECT_EQ(melString("getAttr persp.tx"), "7");
    mel("redo");
    EXPECT_EQ(number(), 5);
    EXPECT_EQ(melString("getAttr persp.tx"), "1");
}

TEST_F(pluginCommand, keepsTheSecondOfTwoEqualShortFlagsByItsLongName)
{
    EXPECT_EQ(melString("number -s 4"), "0");
    EXPECT_EQ(melString("number -second"), "second");
}

TEST_F(pluginCommand, refusesBadArgumentsWithOneLine)
{
    EXPECT_EQ(melError("number -bogus"), "Invalid flag '-bogus'");
    EXPECT_EQ(melError("number -q -s"), "Invalid flag '-q'");
    EXPECT_EQ(melError("number -setTo abc"),
              "Invalid arguments for flag 's'.  Expected ( int ), got [ string ]");
    EXPECT_EQ(melError("number -setTo"),
              "Invalid arguments for flag 's'.  Expected ( int ), got [ ]");
    EXPECT_EQ(melError("number stray"), "Wrong number of arguments on call to number.");
    EXPECT_EQ(melError("number -fail"), "") << "what a command does not say is not said";
    EXPECT_EQ(undoItems(), "0");
}

TEST_F(pluginCommand, losesTheQueueWhenItsUndoFails)
{
    mel("number -setTo 1");
    mel("number -setTo 13");
    takeErrors();
    MGlobal::executeCommand("undo");
    EXPECT_EQ(takeErrors(),
              "Undo was not successful.  Damaged undo/redo information has been flushed.");
    EXPECT_EQ(undoItems(), "0");
    mel("number -setTo 0");
}

TEST_F(pluginCommand, keepsThePluginWhileItIsOnTheQueue)
{
    EXPECT_EQ(melString("pluginInfo -q -version apiTestPlugin"), "1.5");
    mel("number -setTo 2");
    EXPECT_NE(melError("unloadPlugin apiTestPlugin"), "");
    EXPECT_EQ(number(), 2);
    mel("flushUndo; unloadPlugin apiTestPlugin");
    isLoaded_ = false;
    EXPECT_NE(melError("number"), "");
}

TEST_F(pluginCommand, reportsCallbacksThatThePluginLeavesBehind)
{
    mel("number -setTo 99; flushUndo");
    takeErrors();
    mel("unloadPlugin apiTestPlugin");
    isLoaded_ = false;
    EXPECT_EQ(takeErrors(), "Plug-in, \"apiTestPlugin\", left callbacks behind: 1.");
    mel("select -r persp"); // would run into code that is gone
}

TEST_F(pluginCommand, startsAnewWhenItIsLoadedAgain)
{
    mel("number -setTo 3; flushUndo; unloadPlugin apiTestPlugin; loadPlugin \"" API_TEST_PLUGIN
        "\"");
    EXPECT_EQ(number(), 0);
}
