// SPDX-License-Identifier: Apache-2.0
#include <cstdlib>
#include <filesystem>

#include "skinning/skinningScene.h"

namespace
{

// Works on the plug-in that is built beside the tests.
class pluginCommands : public skinningScene
{
protected:
    pluginCommands()
    {
        setenv("MAYA_PLUG_IN_PATH", "/nowhere:" KORVEX_PLUGIN_DIR, 1);
        if (!std::filesystem::exists(KORVEX_PLUGIN_DIR "/korvex.so"))
            skipped_ = true;
    }
    ~pluginCommands() override { unsetenv("MAYA_PLUG_IN_PATH"); }
    void SetUp() override
    {
        if (skipped_)
            GTEST_SKIP() << "the plug-in is not built";
    }

private:
    bool skipped_ = false;
};

} // namespace

TEST_F(pluginCommands, loadAndUnload)
{
    EXPECT_EQ(number("pluginInfo -q -loaded korvex"), 0);
    EXPECT_EQ(names("loadPlugin korvex"), "korvex");
    EXPECT_EQ(number("pluginInfo -q -loaded korvex.so"), 1);
    EXPECT_EQ(names("pluginInfo -q -listPlugins"), "korvex");
    EXPECT_EQ(names("pluginInfo -q -command korvex"), "korvexCmd");
    EXPECT_EQ(MGlobal::executeCommandStringResult("pluginInfo -q -path korvex"),
              MString(KORVEX_PLUGIN_DIR "/korvex.so"));

    EXPECT_EQ(run("loadPlugin korvex"), "Warning: Plug-in, \"korvex\", is already loaded.");
    EXPECT_EQ(run("loadPlugin -quiet \"" KORVEX_PLUGIN_DIR "/korvex.so\""), "");
    EXPECT_EQ(names("unloadPlugin korvex"), "korvex");
    EXPECT_EQ(refusal("korvexCmd"), "Cannot find procedure \"korvexCmd\".");
    EXPECT_EQ(refusal("unloadPlugin korvex"), "Plug-in, \"korvex\", is not loaded.");
    EXPECT_EQ(names("loadPlugin korvex"), "korvex") << "and once more";
}

TEST_F(pluginCommands, refuseWhatIsNoPlugin)
{
    EXPECT_EQ(refusal("loadPlugin nothing"),
              "Plug-in, \"nothing\", was not found on MAYA_PLUG_IN_PATH.");
    EXPECT_NE(refusal("loadPlugin \"/etc/hostname\""), "");
    EXPECT_EQ(names("pluginInfo -q -listPlugins"), "");
    EXPECT_EQ(refusal("pluginInfo -q -path nothing"), "Plug-in, \"nothing\", is not loaded.");
}
