// SPDX-License-Identifier: Apache-2.0
#include "ma/statementRunner.h"

#include <algorithm>
#include <cctype>

#include "ma/learnedType.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

// What follows these would be about another node, or about none. Weights that can't be read are
// not guessed either, see mustNotFail().
constexpr std::string_view kMustNotFail[] = {"createNode", "parent", "rename", "select"};

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

bool isLegalName(std::string_view name)
{
    return !name.empty() && name.back() != ':' &&
           std::all_of(name.begin(), name.end(), [](unsigned char c) {
               return std::isalnum(c) || c == '_' || c == ':' || c >= 0x80;
           });
}

// The plug that a setAttr statement is about, "node.attr" or ".attr"; empty if it names none.
std::string_view plugOf(const mel::Statement &statement)
{
    for (const mel::Argument &argument : statement.arguments) {
        if (argument.kind == mel::Argument::Kind::string &&
            argument.text.find('.') != std::string_view::npos)
            return argument.text;
    }
    return {};
}

// The top-level attribute that a setAttr or addAttr statement is about.
std::string attributeOf(const mel::Statement &statement)
{
    if (const mel::Argument *name = flagValue(statement, "-ln", "-longName"))
        return std::string(name->text);
    const std::string_view plug = plugOf(statement);
    const std::string_view path = plug.empty() ? plug : plug.substr(plug.find('.') + 1);
    return std::string(path.substr(0, path.find_first_of(".[")));
}

// As it stood in the file; statements about a node are indented below its createNode.
std::string textOf(const mel::Statement &statement)
{
    return (statement.column > 1 ? "\t" : "") + std::string(statement.text) + ';';
}

} // namespace

StatementRunner::StatementRunner(mel::Context context, FileWarnings *warnings)
    : currentNode_(context.currentNode ? *context.currentNode : nullptr), context_(context),
      warnings_(warnings)
{
    context_.currentNode = &currentNode_;
    context_.pendingWeights = &pendingWeights_;
}

bool StatementRunner::run(const mel::Statement &statement)
{
    line_ = statement.line;
    return runHere(statement);
}

bool StatementRunner::runHere(const mel::Statement &statement)
{
    // The text of a file must not reach commands that it may not call.
    for (const mel::Argument &argument : statement.arguments) {
        if (argument.kind == mel::Argument::Kind::call)
            throw Error("A scene file can not call commands for their result");
    }
    if (contains(kAboutCurrentNode, statement.command))
        requireCurrentNode(statement);
    try {
        return call(statement);
    } catch (const Error &error) {
        if (mustNotFail(statement))
            throw;
        keep(statement);
        warn(statement, error.what());
        return false;
    }
}

void StatementRunner::runAll(std::string_view text)
{
    mel::Script script;
    while (!text.empty()) {
        std::size_t lines = 0;
        const std::size_t end = std::min(mel::statementEnd(text, lines), text.size());
        script.clear();
        if (const mel::SyntaxError error = mel::parseScript(text.substr(0, end), script))
            throw Error(error.message);
        for (const mel::Statement &statement : script.statements)
            runHere(statement);
        text.remove_prefix(end);
    }
}

void StatementRunner::finish()
{
    Scene &scene = context_.scene();
    pendingWeights_.write(scene);
    for (const NodePtr &node : scene.nodes()) {
        if (hasOldType(scene, *node))
            runAbout(node, adoptType(scene, node));
    }
}

// What a node's new type makes of statements that were run before.
void StatementRunner::runAbout(const NodePtr &node, const std::string &text)
{
    const NodePtr before = currentNode_;
    currentNode_ = node;
    runAll(text);
    currentNode_ = before;
}

bool StatementRunner::mustNotFail(const mel::Statement &statement)
{
    if (contains(kMustNotFail, statement.command))
        return true;
    if (statement.command != "setAttr")
        return false;
    const std::string_view node = plugOf(statement).substr(0, plugOf(statement).find('.'));
    const NodePtr owner = node.empty() ? currentNode_ : context_.scene().findNode(node);
    const std::string attribute = attributeOf(statement);
    return owner && owner->isA("skinCluster") && (attribute == "wl" || attribute == "weightList");
}

bool StatementRunner::call(const mel::Statement &statement)
{
    const std::string name(statement.command);
    if (name == "select") {
        selectNode(statement);
        return true;
    }
    const mel::Command *command = context_.interpreter.commands().find(name);
    // The file command does more than name references.
    const bool isForbidden = name == "file" && !hasFlag(statement, "-r", "-reference") &&
                             !hasFlag(statement, "-rdi", "-referenceDepthInfo");
    if (!command || !command->isFileStatement || isForbidden)
        return skip(statement);
    prepare(statement);
    context_.interpreter.call(context_, statement);
    if (name == "createNode") {
        checkGivenName(statement);
        if (hasFlag(statement, "-name", "-name"))
            context_.scene().facts.hasLongNames = true;
    } else if (name == "file") {
        noteReference(statement);
    }
    return true;
}

bool StatementRunner::skip(const mel::Statement &statement)
{
    Scene &scene = context_.scene();
    if (currentNode_ && statement.column > 1)
        scene.keepStatement(currentNode_, {textOf(statement), ""});
    else
        scene.facts.trailing.push_back(textOf(statement));
    warn(statement,
         '"' + std::string(statement.command) + "\" is no command of a scene file; it was skipped");
    return false;
}

// What a statement takes for granted and the scene may not know yet.
void StatementRunner::prepare(const mel::Statement &statement)
{
    std::string_view parent;
    if (statement.command == "createNode") {
        if (const mel::Argument *name = flagValue(statement, "-p", "-parent"))
            parent = name->text;
    } else if (statement.command == "parent") {
        // Without objects the command would turn to what is selected in the session.
        if (statement.arguments.empty() || statement.arguments.back().isFlag())
            throw Error("No objects were specified");
        if (!hasFlag(statement, "-w", "-world"))
            parent = statement.arguments.back().text;
    } else if (statement.command == "connectAttr") {
        makeDefaultNodes(statement);
    }
    if (parent.empty())
        return;
    if (const NodePtr node = context_.scene().findNode(parent))
        runAbout(node, makeParent(context_.scene(), node));
}

// "select -ne :time1;" says which node the next statements are about. The selection stays as it is.
void StatementRunner::selectNode(const mel::Statement &statement)
{
    const std::string name =
        statement.arguments.empty() ? "" : std::string(statement.arguments.back().text);
    Scene &scene = context_.scene();
    currentNode_ = scene.findNode(name);
    if (currentNode_)
        return;
    if (!isLegalName(name))
        throwNoSuchObject(name);
    currentNode_ = scene.defaultNode(name);
}

// Plug-ins bring default nodes that a file names, with the colon of the root namespace, and nobody
// creates.
void StatementRunner::makeDefaultNodes(const mel::Statement &statement)
{
    for (const mel::Argument &argument : statement.arguments) {
        const std::string_view name = argument.text.substr(0, argument.text.find('.'));
        if (!argument.isFlag() && name.size() > 1 && name.front() == ':' && isLegalName(name))
            context_.scene().defaultNode(name);
    }
}

// Without a node to be about the command would change what is selected.
void StatementRunner::requireCurrentNode(const mel::Statement &statement) const
{
    if (!currentNode_)
        throw Error("There is no node yet that this statement could be about");
    if (statement.command == "rename" && !hasFlag(statement, "-uid", "-uuid"))
        throw Error("A file can not rename nodes");
}

// Scene gives a number to a name that is taken. In a file that would tear names and what they mean
// apart: whatever follows about the second node would change the first.
void StatementRunner::checkGivenName(const mel::Statement &statement) const
{
    const mel::Argument *wanted = flagValue(statement, "-n", "-name");
    if (wanted && currentNode_ && currentNode_->name() != wanted->text)
        throw Error("The name \"" + std::string(wanted->text) + "\" is taken");
}

// The nodes of another file are not loaded: who opens the scene should know what is missing.
void StatementRunner::noteReference(const mel::Statement &statement)
{
    if (!hasFlag(statement, "-r", "-reference") || statement.arguments.empty())
        return;
    warn(statement, "The referenced file \"" + std::string(statement.arguments.back().text) +
                        "\" is not loaded");
}

void StatementRunner::keep(const mel::Statement &statement)
{
    Scene &scene = context_.scene();
    const std::string own = textOf(statement);
    if (contains(kAboutCurrentNode, statement.command))
        scene.keepStatement(currentNode_, {own, attributeOf(statement)});
    else if (statement.command == "requires")
        scene.facts.requiredPlugins.push_back(own);
    else if (statement.command == "file")
        scene.facts.references.push_back(own);
    else if (statement.command != "connectAttr" || !keepConnection(statement))
        scene.facts.trailing.push_back(own);
}

// False if the statement has not one source and one destination.
bool StatementRunner::keepConnection(const mel::Statement &statement)
{
    std::vector<std::string_view> plugs;
    KeptConnection connection;
    bool isFlagValue = false;
    for (const mel::Argument &argument : statement.arguments) {
        if (argument.isFlag() || isFlagValue)
            connection.flags += ' ' + std::string(argument.text);
        else
            plugs.push_back(argument.text);
        isFlagValue = argument.isFlag() && (argument.text == "-l" || argument.text == "-lock");
    }
    if (plugs.size() != 2)
        return false;
    connection.source = endOf(plugs[0]);
    connection.destination = endOf(plugs[1]);
    context_.scene().facts.keptConnections.push_back(std::move(connection));
    return true;
}

KeptConnection::End StatementRunner::endOf(std::string_view plug)
{
    const std::size_t dot = std::min(plug.find('.'), plug.size());
    const std::string name(plug.substr(0, dot));
    const std::vector<DagPath> paths = context_.scene().pathsMatching(name, 2);
    const std::vector<NodePtr> &named = context_.scene().nodesNamed(name);
    if (paths.size() == 1)
        return {true, paths.front().node(), std::string(plug.substr(dot))};
    if (paths.empty() && named.size() == 1)
        return {true, named.front(), std::string(plug.substr(dot))};
    return {false, {}, std::string(plug)};
}

void StatementRunner::warn(const mel::Statement &statement, const std::string &text)
{
    if (warnings_)
        warnings_->add(std::string(statement.command), line_, text);
}

} // namespace host::ma
