// SPDX-License-Identifier: Apache-2.0
#include "ma/reader.h"

#include <algorithm>
#include <cctype>

#include "ma/maFile.h"
#include "ma/sessionMark.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

constexpr std::size_t kProgressBytes = 256u << 10;

// Commands whose failure leaves a scene that is still right in itself. addAttr is among them
// because older files add attributes that node types have had since.
constexpr std::string_view kMayFail[] = {
    "addAttr",  "applyMetadata", "connectAttr", "dataStructure", "file",     "fileInfo",
    "lockNode", "instanceable",  "currentUnit", "relationship",  "requires",
};

// Commands about the node of the createNode or select before them.
constexpr std::string_view kAboutCurrentNode[] = {"addAttr", "instanceable", "lockNode", "rename",
                                                  "setAttr"};

template <std::size_t N>
bool contains(const std::string_view (&list)[N], std::string_view word)
{
    return std::find(std::begin(list), std::end(list), word) != std::end(list);
}

// The operand behind the flag, or null.
const mel::Argument *flagValue(const mel::Statement &statement, std::string_view shortFlag,
                               std::string_view longFlag)
{
    const auto &arguments = statement.arguments;
    for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
        const mel::Argument &argument = arguments[i];
        if (argument.isFlag() && (argument.text == shortFlag || argument.text == longFlag))
            return &arguments[i + 1];
    }
    return nullptr;
}

bool hasFlag(const mel::Statement &statement, std::string_view shortFlag, std::string_view longFlag)
{
    return std::any_of(
        statement.arguments.begin(), statement.arguments.end(), [&](const mel::Argument &argument) {
            return argument.isFlag() && (argument.text == shortFlag || argument.text == longFlag);
        });
}

} // namespace

Reader::Reader(mel::Interpreter &interpreter, const std::string &path, Scene &target)
    : interpreter_(interpreter), target_(target), file_(path), statements_(file_),
      warnings_(interpreter.session().output(), file_.path()),
      context_{interpreter.session(), interpreter, &currentNode_, true, file_.size(), &target}
{
}

void Reader::run()
{
    const SessionMark mark(interpreter_.session().isReadingFile);
    target_.facts.mayaVersion = file_.version();
    StatementText statement;
    while (statements_.next(statement)) {
        runStatement(statement);
        reportProgress();
    }
    const std::string decoding = file_.decodingWarning();
    if (!decoding.empty())
        warnings_.addForFile(decoding);
    warnings_.finish();
}

void Reader::runStatement(const StatementText &text)
{
    script_.clear();
    if (const mel::SyntaxError error = mel::parseScript(text.text, script_, text.line))
        throwFileError(file_.path(), error.line, error.message);
    for (const mel::Statement &statement : script_.statements) {
        const std::string command(statement.command);
        try {
            call(statement);
        } catch (const Error &error) {
            if (!contains(kMayFail, command))
                throwFileError(file_.path(), statement.line, error.what());
            warnings_.add(command, statement.line, error.what());
        }
    }
}

void Reader::call(const mel::Statement &statement)
{
    checkArguments(statement);
    if (statement.command == "select")
        selectNode(statement);
    else
        callCommand(statement);
}

void Reader::callCommand(const mel::Statement &statement)
{
    const std::string name(statement.command);
    const mel::Command *command = interpreter_.commands().find(name);
    // The file command does more than name references.
    const bool isForbidden = name == "file" && !hasFlag(statement, "-r", "-reference") &&
                             !hasFlag(statement, "-rdi", "-referenceDepthInfo");
    if (!command || !command->isFileStatement || isForbidden) {
        warnings_.add("commands that a file may not hold", statement.line,
                      "\"" + name + "\" is no command of a scene file; it was skipped");
        return;
    }
    if (contains(kAboutCurrentNode, name))
        requireCurrentNode(statement);
    if (name == "parent")
        requireObjects(statement);
    interpreter_.call(context_, statement);
    if (name == "createNode") {
        checkGivenName(statement);
        noteLongNames(statement);
    } else if (name == "file") {
        noteReference(statement);
    }
}

// "select -ne :time1;" says which node the next statements are about. The selection stays as it is.
void Reader::selectNode(const mel::Statement &statement)
{
    const std::string name =
        statement.arguments.empty() ? "" : std::string(statement.arguments.back().text);
    currentNode_ = target_.findNode(name);
    if (currentNode_)
        return;
    const bool isLegal = std::all_of(name.begin(), name.end(), [](unsigned char c) {
        return std::isalnum(c) || c == '_' || c == ':' || c >= 0x80;
    });
    if (!isLegal || name.empty() || name.back() == ':')
        throwNoSuchObject(name);
    currentNode_ = target_.defaultNode(name);
}

// Without objects the command would turn to what is selected in the session.
void Reader::requireObjects(const mel::Statement &statement) const
{
    const bool isBare = std::all_of(statement.arguments.begin(), statement.arguments.end(),
                                    [](const mel::Argument &word) { return word.isFlag(); });
    if (isBare)
        throw Error("No objects were specified");
}

// The same for these without a node to be about: they would change what is selected.
void Reader::requireCurrentNode(const mel::Statement &statement) const
{
    if (!currentNode_)
        throw Error("There is no node yet that this statement could be about");
    if (statement.command == "rename" && !hasFlag(statement, "-uid", "-uuid"))
        throw Error("A file can not rename nodes");
}

// The text of a file must not reach commands that it may not call.
void Reader::checkArguments(const mel::Statement &statement) const
{
    for (const mel::Argument &argument : statement.arguments) {
        if (argument.kind == mel::Argument::Kind::call)
            throw Error("A scene file can not call commands for their result");
    }
}

// Scene gives a number to a name that is taken. In a file that would tear names and what they mean
// apart: whatever follows about the second node would change the first.
void Reader::checkGivenName(const mel::Statement &statement) const
{
    const mel::Argument *wanted = flagValue(statement, "-n", "-name");
    if (wanted && currentNode_ && currentNode_->name() != wanted->text)
        throw Error("The name \"" + std::string(wanted->text) + "\" is taken");
}

void Reader::noteLongNames(const mel::Statement &statement)
{
    if (hasFlag(statement, "-name", "-name"))
        target_.facts.hasLongNames = true;
}

// The nodes of another file are not loaded: who opens the scene should know what is missing.
void Reader::noteReference(const mel::Statement &statement)
{
    if (!hasFlag(statement, "-r", "-reference") || statement.arguments.empty())
        return;
    warnings_.add("file references", statement.line,
                  "The referenced file \"" + std::string(statement.arguments.back().text) +
                      "\" is not loaded");
}

void Reader::reportProgress()
{
    const ProgressFunction &progress = interpreter_.session().progress;
    if (file_.bytesRead() < reported_ + kProgressBytes)
        return;
    reported_ = file_.bytesRead();
    if (progress && !progress(reported_, file_.size()))
        throw Error(file_.path() + ": cancelled");
}

std::unique_ptr<Scene> readFile(mel::Interpreter &interpreter, const std::string &path)
{
    auto scene = std::make_unique<Scene>();
    scene->setGivesUuids(false);
    Reader reader(interpreter, path, *scene);
    reader.run();
    scene->setGivesUuids(true);
    scene->setModified(false);
    return scene;
}

} // namespace host::ma
