// SPDX-License-Identifier: Apache-2.0
#include <cstdlib>

#include "support/mayaSession.h"

namespace
{

// Works on the plug-in that is built beside the tests.
class pluginCommands : public MayaSession
{
protected:
    pluginCommands() { setenv("MAYA_PLUG_IN_PATH", "/nowhere:" KORVEX_PLUGIN_DIR, 1); }
    ~pluginCommands() override { unsetenv("MAYA_PLUG_IN_PATH"); }
};

} // namespace

TEST_F(pluginCommands, loadAndUnload)
{
    EXPECT_EQ(melString("pluginInfo -q -loaded korvex"), "0");
    EXPECT_EQ(melStrings("loadPlugin korvex"), "korvex");
    EXPECT_EQ(melString("pluginInfo -q -loaded korvex.so"), "1");
    EXPECT_EQ(melStrings("pluginInfo -q -listPlugins"), "korvex");
    EXPECT_EQ(melStrings("pluginInfo -q -command korvex"), "korvexCmd");
    EXPECT_EQ(melString("pluginInfo -q -path korvex"), KORVEX_PLUGIN_DIR "/korvex.so");

    mel("loadPlugin korvex; loadPlugin -quiet \"" KORVEX_PLUGIN_DIR "/korvex.so\"");
    EXPECT_EQ(takeWarnings(), "Plug-in, \"korvex\", is already loaded.");
    EXPECT_EQ(melStrings("unloadPlugin korvex"), "korvex");
    EXPECT_EQ(melError("korvexCmd"), "Cannot find procedure \"korvexCmd\".");
    EXPECT_EQ(melError("unloadPlugin korvex"), "Plug-in, \"korvex\", is not loaded.");
    EXPECT_EQ(melStrings("loadPlugin korvex"), "korvex") << "and once more";
    mel("unloadPlugin korvex");
}

TEST_F(pluginCommands, refuseWhatIsNoPlugin)
{
    EXPECT_EQ(melError("loadPlugin nothing"),
              "Plug-in, \"nothing\", was not found on MAYA_PLUG_IN_PATH.");
    EXPECT_NE(melError("loadPlugin \"/etc/hostname\""), "");
    EXPECT_EQ(melStrings("pluginInfo -q -listPlugins"), "");
    EXPECT_EQ(melError("pluginInfo -q -path nothing"), "Plug-in, \"nothing\", is not loaded.");
}
