// SPDX-License-Identifier: Apache-2.0
#include "ma/reader.h"

#include "ma/maFile.h"
#include "ma/sessionMark.h"
#include "ma/standardStream.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

constexpr std::size_t kProgressBytes = 256u << 10;

} // namespace

Reader::Reader(mel::Interpreter &interpreter, const std::string &path, Scene &target)
    : interpreter_(interpreter), target_(target), file_(path), statements_(file_),
      warnings_(interpreter.session().output(), file_.path()),
      runner_({interpreter.session(), interpreter, nullptr, true, file_.size(), &target},
              &warnings_)
{
}

Reader::Reader(mel::Interpreter &interpreter, const std::string &path, const std::string *bytes,
               Scene &target, StatementListener *listener)
    : interpreter_(interpreter), target_(target),
      file_(bytes ? FileText(path, *bytes) : FileText(path)), statements_(file_),
      warnings_(silence_, file_.path()),
      runner_({interpreter.session(), interpreter, nullptr, true, file_.size(), &target}, nullptr),
      listener_(listener), showsProgress_(false)
{
}

void Reader::run()
{
    const SessionMark mark(interpreter_.session().isReadingFile);
    target_.setGivesUuids(false);
    target_.facts.mayaVersion = file_.version();
    StatementText statement;
    while (statements_.next(statement)) {
        runStatement(statement);
        reportProgress();
    }
    runner_.finish();
    target_.addMissingCameras();
    target_.setGivesUuids(true);
    if (listener_)
        listener_->hasEnded(statements_.rest());
    if (!statements_.hasEndMark())
        warnings_.addForFile("The file does not end with the line \"// End of ...\"; what stood "
                             "behind its last statement may be missing");
    const std::string decoding = file_.decodingWarning();
    if (!decoding.empty())
        warnings_.addForFile(decoding);
    warnings_.show();
}

void Reader::runStatement(const StatementText &text)
{
    script_.clear();
    if (const mel::SyntaxError error = mel::parseScript(text.text, script_, text.line))
        throwFileError(file_.path(), error.line, error.message);
    bool hasFailed = false;
    for (const mel::Statement &statement : script_.statements) {
        try {
            hasFailed = !runner_.run(statement) || hasFailed;
        } catch (const Error &error) {
            throwFileError(file_.path(), statement.line, error.what());
        }
    }
    if (listener_)
        listener_->wasRead(text.text, script_, runner_.currentNode(), hasFailed);
}

void Reader::reportProgress()
{
    const ProgressFunction &progress = interpreter_.session().progress;
    if (!showsProgress_ || file_.bytesRead() < reported_ + kProgressBytes)
        return;
    reported_ = file_.bytesRead();
    if (progress && !progress(reported_, file_.size()))
        throw Error(file_.path() + ": cancelled");
}

std::unique_ptr<Scene> readFile(mel::Interpreter &interpreter, const std::string &path)
{
    auto scene = std::make_unique<Scene>(Scene::Cameras::leftToFile);
    Reader reader(interpreter, path, *scene);
    reader.run();
    if (path != kStandardStream)
        scene->facts.path = path;
    scene->setModified(false);
    return scene;
}

} // namespace host::ma
