// SPDX-License-Identifier: Apache-2.0
// Scenes that people made with Maya: opened, saved, and compared statement by statement. The folder
// of the scenes comes from the environment variable KORVEX_SCENES.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>

#include "support/maText.h"
#include "support/sceneFile.h"

namespace
{

// Differences that are meant.
bool isExplained(const std::string &difference)
{
    static const std::regex explained(
        // Sizes are hints; what a size announces may be elements that hold nothing.
        R"(. .* (-s|-ch) = .*)"
        // The default cameras are in every scene, also if the file left them out.
        R"(|\+ (node )?(persp|top|front|side)[ |].*)"
        R"(|\+ node (persp|top|front|side) = .*)");
    return std::regex_match(difference, explained);
}

class RealSceneFile : public SceneFileTest
{
};

TEST_F(RealSceneFile, isSavedAsItWas)
{
    const char *folder = std::getenv("KORVEX_SCENES");
    if (!folder)
        GTEST_SKIP() << "KORVEX_SCENES is not set";
    unsigned scenes = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".ma")
            continue;
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        ++scenes;
        ASSERT_TRUE(open(entry.path().string())) << takeErrors();
        EXPECT_EQ(takeWarnings(), "");
        const std::string saved = path(name);
        ASSERT_TRUE(MFileIO::saveAs(saved.c_str())) << takeErrors();

        std::vector<std::string> lines = differences(maText(entry.path().string()), maText(saved));
        lines.erase(std::remove_if(lines.begin(), lines.end(), isExplained), lines.end());
        for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), 20); ++i)
            ADD_FAILURE() << lines[i];

        const std::string text = textOf(saved);
        ASSERT_TRUE(open(saved)) << takeErrors();
        ASSERT_TRUE(MFileIO::save(true));
        EXPECT_TRUE(textOf(saved) == text) << "another saving differs";
    }
    EXPECT_GT(scenes, 0u) << "no scenes in " << folder;
}

} // namespace
