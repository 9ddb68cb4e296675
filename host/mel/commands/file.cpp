// SPDX-License-Identifier: Apache-2.0
// file: new, open, save, import, export, rename; what is asked about the scene's file; and the
// references that a file names.
#include <algorithm>
#include <filesystem>
#include <unordered_set>

#include "ma/maFile.h"
#include "ma/sessionMark.h"
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/exportedNodes.h"
#include "mel/commands/statementText.h"

namespace host::mel
{

namespace
{

namespace fs = std::filesystem;

const std::vector<Flag> kFlags = {
    {"new", "newFile"},
    {"o", "open"},
    {"s", "save"},
    {"i", "import"},
    {"rn", "rename"},
    {"ea", "exportAll"},
    {"es", "exportSelected"},
    {"r", "reference"},
    {"f", "force"},
    {"typ", "type", "s"},
    {"op", "options", "s"},
    {"iv", "ignoreVersion"},
    {"pmt", "prompt", "b"},
    {"pr", "preserveReferences"},
    {"ns", "namespace", "s"},
    {"rnn", "returnNewNodes"},
    {"mf", "modified", "b"},
    {"sn", "sceneName"},
    {"shn", "shortName"},
    {"ex", "exists"},
    {"loc", "location"},
    {"rpr", "renamingPrefix", "s"},
    // Only in files.
    {"rdi", "referenceDepthInfo", "i"},
    {"rfn", "referenceNode", "s"},
    {"dr", "deferReference", "b"},
};

// Flags that would be without effect.
void refuseStrayFlags(const Arguments &arguments)
{
    for (const char *flag : {"referenceDepthInfo", "referenceNode", "deferReference"}) {
        if (arguments.has(flag))
            throw Error(std::string("file: References are not loaded; only a file may say -") +
                        flag + ".");
    }
    if (arguments.has("renamingPrefix") && !arguments.has("import"))
        throw Error("file: -renamingPrefix belongs to -import.");
}

std::string pathOperand(const Arguments &arguments)
{
    const std::string path = arguments.objects.empty() ? "" : arguments.objects[0].string();
    if (path.empty())
        throw Error("file: No file name was given.");
    return ma::absolutePath(path);
}

// The name under which a scene is written, with an extension.
std::string writablePath(const std::string &path, const Arguments &arguments)
{
    if (!fs::path(path).has_filename())
        throw Error("file: " + path + " names a folder, not a file.");
    const std::string type = arguments.string("type");
    const std::string extension = fs::path(path).extension().string();
    if ((!type.empty() && type != "mayaAscii") || (type.empty() && extension == ".mb"))
        throw Error("file: Scenes can only be written as Maya ASCII (.ma).");
    return extension.empty() ? path + ".ma" : path;
}

void refuseToLoseChanges(Context &context, const Arguments &arguments)
{
    if (context.session.scene().isModified() && !arguments.has("force"))
        throw Error("Unsaved changes.");
}

MelValue newFile(Context &context, const Arguments &arguments)
{
    refuseToLoseChanges(context, arguments);
    const ma::SessionMark mark(context.session.isNewingFile);
    context.session.replaceScene(std::make_unique<Scene>(), "", Session::Replacement::newScene);
    return std::string("untitled");
}

MelValue open(Context &context, const Arguments &arguments)
{
    const std::string path = pathOperand(arguments);
    refuseToLoseChanges(context, arguments);
    ma::openFile(context.interpreter, path);
    return path;
}

MelValue save(Context &context, const Arguments &arguments)
{
    Session &session = context.session;
    if (session.fileName().empty())
        throw Error("file: The scene has no name yet; -rename gives it one.");
    try {
        const std::string path = writablePath(session.fileName(), arguments);
        ma::saveFile(context.interpreter, path);
        return path;
    } catch (...) {
        session.takeBackFileName();
        throw;
    }
}

MelValue import(Context &context, const Arguments &arguments)
{
    const std::string path = pathOperand(arguments);
    std::unordered_set<const Node *> before;
    for (const NodePtr &node : context.session.scene().nodes())
        before.insert(node.get());
    ma::importFile(context.interpreter, path, arguments.string("namespace"),
                   arguments.string("renamingPrefix"));
    context.session.events().raise("SceneImported");
    if (!arguments.has("returnNewNodes"))
        return path;
    std::vector<std::string> names;
    for (const NodePtr &node : context.session.scene().nodes()) {
        if (before.count(node.get()) == 0)
            names.push_back(node->uniqueName());
    }
    return names;
}

MelValue rename(Context &context, const Arguments &arguments)
{
    const std::string path = pathOperand(arguments);
    context.session.setFileName(path);
    return path;
}

MelValue exportAll(Context &context, const Arguments &arguments)
{
    const std::string path = writablePath(pathOperand(arguments), arguments);
    ma::writeFile(context.session, path);
    return path;
}

MelValue exportSelected(Context &context, const Arguments &arguments)
{
    const std::string path = writablePath(pathOperand(arguments), arguments);
    const SelectionList &selection = context.session.selection();
    if (selection.isEmpty())
        throw Error("file: Nothing is selected to export.");
    ma::writePart(context.session, path, nodesToExport(selection.items()));
    return path;
}

MelValue reference(Context &, const Arguments &)
{
    throw Error("file: References to other files are not supported; -import brings the nodes in.");
}

struct Action {
    const char *flag;
    MelValue (*run)(Context &context, const Arguments &arguments);
};
// Every call has one of them, if it asks nothing.
const Action kActions[] = {
    {"newFile", newFile},
    {"open", open},
    {"save", save},
    {"import", import},
    {"rename", rename},
    {"exportAll", exportAll},
    {"exportSelected", exportSelected},
    {"reference", reference},
};

MelValue sceneName(Context &context, const Arguments &arguments)
{
    const std::string &name = context.session.fileName();
    return arguments.has("shortName") ? fs::path(name).filename().string() : name;
}

const Action kQuestions[] = {
    {"sceneName", sceneName},
    {"modified",
     [](Context &context, const Arguments &) -> MelValue {
         return static_cast<long long>(context.session.scene().isModified());
     }},
    {"exists",
     [](Context &, const Arguments &arguments) -> MelValue {
         std::error_code problem;
         return static_cast<long long>(fs::is_regular_file(pathOperand(arguments), problem));
     }},
    {"location",
     [](Context &context, const Arguments &) -> MelValue {
         const std::string &name = context.session.fileName();
         return name.empty() ? std::string("unknown") : name;
     }},
    {"type",
     [](Context &, const Arguments &) -> MelValue {
         return std::vector<std::string>{"mayaAscii"};
     }},
};

template <std::size_t N>
const Action *findAction(const Action (&actions)[N], const Arguments &arguments)
{
    const Action *found = nullptr;
    for (const Action &action : actions) {
        if (!arguments.has(action.flag))
            continue;
        if (found)
            throw Error(std::string("file: -") + found->flag + " and -" + action.flag +
                        " can't be done at once.");
        found = &action;
    }
    return found;
}

MelValue file(Context &context, const Arguments &arguments)
{
    // In a file the command names a reference, which is kept; the reader warns about it.
    if (context.isReadingFile) {
        context.scene().facts.references.push_back(statementText("file", kFlags, arguments));
        return MelValue();
    }
    refuseStrayFlags(arguments);
    if (arguments.isQuery()) {
        const Action *question = findAction(kQuestions, arguments);
        if (!question)
            throwNoQuestion();
        return question->run(context, arguments);
    }
    if (const Action *action = findAction(kActions, arguments))
        return action->run(context, arguments);
    if (!arguments.has("modified"))
        throw Error("file: One action is needed: -new, -open, -save, -import, -rename, "
                    "-exportAll.");
    context.session.scene().setModified(arguments.boolean("modified", true));
    return MelValue();
}

} // namespace

void addFileCommand(CommandTable &table)
{
    table.add(fileStatement({"file", kFlags, file, {0, 1}, Modes::create | Modes::query}));
}

} // namespace host::mel
