// SPDX-License-Identifier: Apache-2.0
// loadPlugin, unloadPlugin and pluginInfo: finding plug-ins, and whether they may come or go.
#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/interpreter.h"
#include "mel/pluginLoader.h"

namespace host::mel
{

namespace
{

namespace fs = std::filesystem;

#ifdef __APPLE__
constexpr char kPluginExtension[] = ".bundle";
#else
constexpr char kPluginExtension[] = ".so";
#endif

PluginLoader &loaderOf(Context &context)
{
    if (!context.interpreter.pluginLoader)
        throw Error("Plug-ins cannot be loaded here.");
    return *context.interpreter.pluginLoader;
}

std::string pluginPhrase(std::string_view name)
{
    return "Plug-in, \"" + std::string(name) + "\", ";
}

// "korvex" of "lib/korvex.so": what scripts call the plug-in.
std::string internalName(std::string_view text)
{
    const fs::path path(text);
    return path.extension() == kPluginExtension ? path.stem().string() : path.filename().string();
}

// The folders of the running library and of the program. They need not be neighbours: some systems
// have libraries in a folder per processor, two levels below plug-ins.
std::vector<fs::path> ownFolders()
{
    std::error_code ignored;
    std::vector<fs::path> folders;
    Dl_info library = {};
    if (dladdr(reinterpret_cast<const void *>(&addPluginCommands), &library) && library.dli_fname)
        folders.push_back(fs::absolute(library.dli_fname, ignored).parent_path());
    const fs::path program = fs::read_symlink("/proc/self/exe", ignored); // where there is /proc
    if (!program.empty())
        folders.push_back(program.parent_path());
    return folders;
}

// Where a bare name is looked for: here, along MAYA_PLUG_IN_PATH, and in the folders plug-ins next
// to and above the running library and the program.
std::vector<fs::path> searchFolders()
{
    std::error_code ignored;
    std::vector<fs::path> folders = {fs::current_path(ignored)};
    if (const char *variable = std::getenv("MAYA_PLUG_IN_PATH")) {
        std::istringstream list(variable);
        for (std::string folder; std::getline(list, folder, ':');) {
            if (!folder.empty())
                folders.emplace_back(folder);
        }
    }
    for (const fs::path &beside : ownFolders()) {
        folders.push_back(beside / "plug-ins");
        folders.push_back(beside.parent_path() / "plug-ins");
    }
    return folders;
}

// The absolute path of the plug-in's file; throws when there is none.
std::string findPluginFile(const std::string &text)
{
    const bool hasFolder = text.find('/') != std::string::npos;
    const std::vector<fs::path> folders = hasFolder ? std::vector<fs::path>{""} : searchFolders();
    std::error_code ignored;
    for (const fs::path &folder : folders) {
        for (const char *ending : {"", kPluginExtension}) {
            const fs::path file = folder / (text + ending);
            if (fs::is_regular_file(file, ignored))
                return fs::absolute(file, ignored).lexically_normal().string();
        }
    }
    throw Error(pluginPhrase(text) + "was not found on MAYA_PLUG_IN_PATH.");
}

// The loaded plug-in of that name or file, null if there is none.
const PluginInfo *findLoaded(const std::vector<PluginInfo> &plugins, std::string_view text)
{
    const auto found = std::find_if(plugins.begin(), plugins.end(), [text](const PluginInfo &info) {
        return info.name == text || info.path == text || info.name == internalName(text);
    });
    return found == plugins.end() ? nullptr : &*found;
}

PluginInfo requireLoaded(Context &context, std::string_view text)
{
    const std::vector<PluginInfo> plugins = loaderOf(context).plugins();
    const PluginInfo *info = findLoaded(plugins, text);
    if (!info)
        throw Error(pluginPhrase(text) + "is not loaded.");
    return *info;
}

MelValue loadPlugin(Context &context, const Arguments &arguments)
{
    PluginLoader &loader = loaderOf(context);
    std::vector<std::string> loaded;
    for (const Operand &operand : arguments.objects) {
        const std::string name = arguments.string("name", internalName(operand.text));
        if (findLoaded(loader.plugins(), name)) {
            if (!arguments.has("quiet"))
                context.session.output().warning(pluginPhrase(name) + "is already loaded.");
            continue;
        }
        loader.load(findPluginFile(operand.string()), name);
        loaded.push_back(name);
    }
    return loaded;
}

// The undo queue may hold command objects whose code is in the plug-in: with -force it is emptied,
// without it they keep the plug-in in place.
void release(Context &context, const std::string &name, bool force)
{
    const PluginLoader &loader = loaderOf(context);
    if (loader.use(name) == PluginLoader::Use::undoQueue && force)
        context.session.undo().flush();
    if (loader.use(name) != PluginLoader::Use::none)
        throw Error(pluginPhrase(name) + "cannot be unloaded because it is still in use.");
}

MelValue unloadPlugin(Context &context, const Arguments &arguments)
{
    const bool force = arguments.has("force");
    std::vector<std::string> unloaded;
    for (const Operand &operand : arguments.objects) {
        const std::string name = requireLoaded(context, operand.text).name;
        release(context, name, force);
        loaderOf(context).unload(name, force);
        unloaded.push_back(name);
    }
    return unloaded;
}

MelValue unloadOk(Context &context, const PluginInfo &info)
{
    return static_cast<long long>(loaderOf(context).use(info.name) == PluginLoader::Use::none);
}

struct InfoFlag {
    Flag flag;
    MelValue (*value)(Context &context, const PluginInfo &info);
};

const InfoFlag kInfoFlags[] = {
    {{"p", "path"}, [](Context &, const PluginInfo &info) { return MelValue(info.path); }},
    {{"n", "name"}, [](Context &, const PluginInfo &info) { return MelValue(info.name); }},
    {{"v", "version"}, [](Context &, const PluginInfo &info) { return MelValue(info.version); }},
    {{"vd", "vendor"}, [](Context &, const PluginInfo &info) { return MelValue(info.vendor); }},
    {{"av", "apiVersion"},
     [](Context &, const PluginInfo &info) { return MelValue(info.apiVersion); }},
    {{"c", "command"}, [](Context &, const PluginInfo &info) { return MelValue(info.commands); }},
    {{"uo", "unloadOk"}, unloadOk},
    // Nothing is loaded by itself.
    {{"a", "autoload", "b"}, [](Context &, const PluginInfo &) { return MelValue(0LL); }},
};

MelValue pluginInfo(Context &context, const Arguments &arguments)
{
    if (!arguments.isQuery())
        throw Error("Plug-in information can only be queried.");
    if (arguments.has("listPlugins")) {
        std::vector<std::string> names;
        for (const PluginInfo &info : loaderOf(context).plugins())
            names.push_back(info.name);
        return names;
    }
    requireObjectCount("pluginInfo", arguments.objects.size(), {1, 1});
    const std::string_view name = arguments.objects[0].text;
    if (arguments.has("loaded"))
        return static_cast<long long>(findLoaded(loaderOf(context).plugins(), name) != nullptr);
    for (const InfoFlag &row : kInfoFlags) {
        if (arguments.has(row.flag.longName))
            return row.value(context, requireLoaded(context, name));
    }
    throwNoQuestion();
}

} // namespace

void addPluginCommands(CommandTable &table)
{
    const Objects some = {1, Objects::kAny};
    table.add({"loadPlugin", {{"qt", "quiet"}, {"n", "name", "s"}}, loadPlugin, some});
    table.add({"unloadPlugin", {{"f", "force"}}, unloadPlugin, some});
    Command info{"pluginInfo",
                 {{"ls", "listPlugins"}, {"l", "loaded"}},
                 pluginInfo,
                 {0, 1},
                 Modes::create | Modes::query};
    for (const InfoFlag &row : kInfoFlags)
        info.flags.push_back(row.flag);
    table.add(std::move(info));
}

} // namespace host::mel
