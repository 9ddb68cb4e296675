// SPDX-License-Identifier: Apache-2.0
#include "ma/maFile.h"

#include <filesystem>

#include "ma/sessionMark.h"
#include "ma/standardStream.h"
#include "scene/error.h"

namespace host::ma
{

std::string absolutePath(const std::string &path)
{
    std::error_code problem;
    const std::filesystem::path absolute = std::filesystem::absolute(path, problem);
    if (problem)
        throw Error(path +
                    ": The folder that the program was started in is gone: " + problem.message());
    return absolute.lexically_normal().string();
}

void openFile(mel::Interpreter &interpreter, const std::string &path)
{
    Session &session = interpreter.session();
    std::unique_ptr<Scene> scene;
    {
        const SessionMark mark(session.isOpeningFile);
        scene = readFile(interpreter, path);
    }
    session.replaceScene(std::move(scene), path == kStandardStream ? "" : path,
                         Session::Replacement::openedFile);
}

namespace
{

// A scene that was only looked at is in its file as it is. What a look adds, as the editor its
// attributes for locks, waits for the first change.
bool isInItsFile(const Scene &scene, const std::string &path)
{
    std::error_code problem;
    return !scene.isModified() && path == scene.facts.path &&
           std::filesystem::exists(path, problem);
}

} // namespace

void saveFile(mel::Interpreter &interpreter, const std::string &path)
{
    Session &session = interpreter.session();
    if (!isInItsFile(session.scene(), path))
        rewriteFile(interpreter, path);
    session.scene().facts.path = path;
    session.setFileName(path);
    session.confirmFileName();
    session.scene().setModified(false);
    session.events().raise("SceneSaved");
}

} // namespace host::ma
