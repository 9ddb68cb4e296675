// SPDX-License-Identifier: Apache-2.0
// The scene as the text that it is saved as, and scenes from a text.
#pragma once

#include "mel/melRecorder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

// A file of this test in a folder that goes away with the program's temporary files.
inline std::string scenePath(const std::string &name)
{
    const auto *test = testing::UnitTest::GetInstance()->current_test_info();
    std::string folder = std::string("korvex-") + test->test_suite_name() + "-" + test->name();
    for (char &c : folder)
        c = c == '/' ? '-' : c;
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / folder;
    std::filesystem::create_directories(path);
    return (path / name).string();
}

inline std::string fileText(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// What `file -exportAll` writes; empty if it fails.
inline std::string savedScene()
{
    const std::string path = scenePath("saved.ma");
    const std::string command = "file -f -type \"mayaAscii\" -exportAll \"" + path + "\"";
    return MGlobal::executeCommand(command.c_str()) ? fileText(path) : std::string();
}

// Writes a scene file with these statements behind the usual head and opens it; gives what that
// showed.
inline std::string openStatements(melRecorder &maya, const std::string &statements)
{
    const std::string path = scenePath("opened.ma");
    std::ofstream(path, std::ios::binary)
        << "//Maya ASCII 2017 scene\n//Codeset: UTF-8\nrequires maya \"2017\";\n"
        << statements << "// End of opened.ma\n";
    return maya.run("file -f -open \"" + path + "\"");
}
