// SPDX-License-Identifier: Apache-2.0
// Scene files of a test: written from text, and the scene saved and read back as text.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <maya/MFileIO.h>

#include "support/mayaSession.h"

class SceneFileTest : public MayaSession
{
protected:
    SceneFileTest()
    {
        const auto *test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test->test_suite_name()) + "-" + test->name();
        for (char &c : name)
            c = c == '/' ? '-' : c;
        folder_ = std::filesystem::path(testing::TempDir()) / ("korvex-" + name);
        std::filesystem::create_directories(folder_);
    }
    ~SceneFileTest() override { std::filesystem::remove_all(folder_); }

    std::string path(const std::string &name) const { return (folder_ / name).string(); }

    // A file with Maya's usual beginning: the statements start in line 4.
    std::string write(const std::string &name, const std::string &statements,
                      const std::string &version = "2019") const
    {
        return writeBytes(name, "//Maya ASCII " + version + " scene\n//Codeset: UTF-8\n" +
                                    "requires maya \"" + version + "\";\n" + statements);
    }

    std::string writeBytes(const std::string &name, const std::string &bytes) const
    {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }

    static std::string textOf(const std::string &path)
    {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    static bool open(const std::string &path)
    {
        return MFileIO::open(path.c_str(), nullptr, true) == MStatus::kSuccess;
    }

    // The scene as it is saved; empty if that fails.
    std::string savedText() const
    {
        const std::string saved = path("saved.ma");
        return MFileIO::exportAll(saved.c_str()) ? textOf(saved) : std::string();
    }

private:
    std::filesystem::path folder_;
};
