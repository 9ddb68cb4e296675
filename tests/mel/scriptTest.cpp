// SPDX-License-Identifier: Apache-2.0
// Runs the scripts in tests/mel/scripts, which carry what they must show.
//
// Each line is executed on its own and can be undone on its own. What it shows must be what stands
// behind its "// expect: ", nothing if it has none; several outputs are joined by " | ", several
// lines of one output by a literal \n.

#include "mel/melRecorder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

namespace
{

std::vector<std::string> scripts()
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(KORVEX_MEL_SCRIPTS))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string onOneLine(std::string text)
{
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end))
        text.replace(end, 1, "\\n");
    return text;
}

class melScript : public testing::TestWithParam<std::string>
{
};

TEST_P(melScript, showsWhatItExpects)
{
    const std::string marker = "// expect: ";
    std::ifstream file(std::string(KORVEX_MEL_SCRIPTS) + "/" + GetParam() + ".mel");
    melRecorder maya;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const std::size_t comment = line.find(marker);
        const bool hasMarker = comment != std::string::npos;
        const std::string expected = hasMarker ? line.substr(comment + marker.size()) : "";
        EXPECT_EQ(onOneLine(maya.run(line.substr(0, comment))), expected)
            << "line " << number << ": " << line;
    }
    EXPECT_TRUE(file.eof());
}

INSTANTIATE_TEST_SUITE_P(scripts, melScript, testing::ValuesIn(scripts()),
                         [](const auto &script) { return script.param; });

} // namespace
