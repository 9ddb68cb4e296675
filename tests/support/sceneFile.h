// SPDX-License-Identifier: Apache-2.0
// Scene files of a test: written from text, and the scene saved and read back as text.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include <QTemporaryDir>

#include <maya/MFileIO.h>

#include "support/mayaSession.h"

class SceneFileTest : public MayaSession
{
protected:
    std::string path(const std::string &name) const
    {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }

    // A file with Maya's usual beginning and end: the statements start in line 4.
    std::string write(const std::string &name, const std::string &statements,
                      const std::string &version = "2019") const
    {
        return writeBytes(name, "//Maya ASCII " + version + " scene\n//Codeset: UTF-8\n" +
                                    "requires maya \"" + version + "\";\n" + statements +
                                    "// End of " + name + "\n");
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
    QTemporaryDir folder_;
};
