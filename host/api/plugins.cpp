// SPDX-License-Identifier: Apache-2.0
#include "api/plugins.h"

#include <dlfcn.h>

#include <algorithm>

#include <maya/MStatus.h>

#include "api/pluginCommand.h"
#include "api/process.h"
#include "scene/error.h"

namespace host
{

namespace
{

#define TEXT_OF(macro) #macro
#define VALUE_TEXT(macro) TEXT_OF(macro)
constexpr char kApiVersionText[] = VALUE_TEXT(MAYA_API_VERSION);
#undef VALUE_TEXT
#undef TEXT_OF

using EntryPoint = MStatus (*)(MObject);

// The mangled names of `MStatus initializePlugin(MObject)` by the headers of this host, and the
// plain ones, for plug-ins that declare their entry points extern "C".
constexpr const char *kInitializeNames[] = {
    "_Z16initializePluginN8Autodesk4Maya14OpenMaya2017007MObjectE", "initializePlugin"};
constexpr const char *kUninitializeNames[] = {
    "_Z18uninitializePluginN8Autodesk4Maya14OpenMaya2017007MObjectE", "uninitializePlugin"};

template <std::size_t count>
EntryPoint findEntryPoint(void *library, const char *const (&names)[count])
{
    for (const char *name : names)
        if (void *symbol = dlsym(library, name))
            return reinterpret_cast<EntryPoint>(symbol);
    return nullptr;
}

void *openLibrary(const std::string &path)
{
    void *library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        const char *reason = dlerror();
        throw Error("Unable to dynamically load : " + path + "  " + (reason ? reason : ""));
    }
    return library;
}

// Why a library is no plug-in for this host; empty if it is one.
std::string objectionTo(void *library)
{
    const auto *version = static_cast<const char *>(dlsym(library, "MApiVersion"));
    if (!version)
        return "it does not export MApiVersion";
    if (std::string(version) != kApiVersionText)
        return std::string("it was built for API version ") + version + ", this is " +
               kApiVersionText;
    if (!findEntryPoint(library, kInitializeNames))
        return "it does not export initializePlugin";
    if (!findEntryPoint(library, kUninitializeNames))
        return "it does not export uninitializePlugin";
    return std::string();
}

} // namespace

bool PluginBody::sameAs(const ObjectBody &other) const
{
    const auto *body = dynamic_cast<const PluginBody *>(&other);
    return body && body->plugin == plugin;
}

Plugins::~Plugins()
{
    unloadAll();
}

void Plugins::load(const std::string &path, const std::string &name)
{
    auto plugin = std::make_shared<Plugin>();
    plugin->info.name = name;
    plugin->info.path = path;
    plugin->library = openLibrary(path);
    const std::string objection = objectionTo(plugin->library);
    if (!objection.empty()) {
        close(*plugin);
        throw Error("Failed to load plug-in (" + name + "): " + objection + ".");
    }
    initialize(plugin);
    loaded_.push_back(plugin);
}

void Plugins::initialize(const std::shared_ptr<Plugin> &plugin)
{
    const EntryPoint entry = findEntryPoint(plugin->library, kInitializeNames);
    const MStatus status = entry(makeObject(std::make_shared<PluginBody>(plugin)));
    if (status && !plugin->isRefused)
        return;
    const std::string reason =
        plugin->isRefused ? ": it demands API version " + plugin->info.apiVersion : std::string();
    dropLeftovers(*plugin);
    close(*plugin);
    throw Error(" (" + plugin->info.name + ")" + reason); // Maya prints the bare name
}

void Plugins::unload(const std::string &name, bool force)
{
    const std::shared_ptr<Plugin> plugin = find(name);
    if (!plugin)
        throw Error("Plug-in, \"" + name + "\", is not loaded.");
    const EntryPoint entry = findEntryPoint(plugin->library, kUninitializeNames);
    const MStatus status = entry(makeObject(std::make_shared<PluginBody>(plugin)));
    if (!status && !force)
        throw Error("Plug-in, \"" + name + "\", failed to uninitialize.");
    dropLeftovers(*plugin);
    loaded_.erase(std::find(loaded_.begin(), loaded_.end(), plugin));
    close(*plugin);
}

Plugins::Use Plugins::use(const std::string &name) const
{
    const std::shared_ptr<Plugin> plugin = find(name);
    if (plugin && plugin->runningCommands > 0)
        return Use::running;
    return plugin && plugin->commandObjects > 0 ? Use::undoQueue : Use::none;
}

std::vector<mel::PluginInfo> Plugins::plugins() const
{
    std::vector<mel::PluginInfo> list;
    for (const std::shared_ptr<Plugin> &plugin : loaded_)
        list.push_back(plugin->info);
    return list;
}

void Plugins::unloadAll()
{
    while (!loaded_.empty()) {
        const std::shared_ptr<Plugin> plugin = loaded_.back();
        unload(plugin->info.name, true);
    }
}

std::shared_ptr<Plugin> Plugins::find(const std::string &name) const
{
    const auto place = std::find_if(loaded_.begin(), loaded_.end(),
                                    [&](const auto &plugin) { return plugin->info.name == name; });
    return place == loaded_.end() ? nullptr : *place;
}

bool Plugins::addCommand(const std::shared_ptr<Plugin> &plugin, const std::string &name,
                         MCreatorFunction creator, MCreateSyntaxFunction createSyntax)
{
    mel::Command command = makePluginCommand(process_, {plugin, name, creator, createSyntax});
    if (!process_.interpreter().commands().add(std::move(command)))
        return false;
    plugin->info.commands.push_back(name);
    return true;
}

bool Plugins::removeCommand(Plugin &plugin, const std::string &name)
{
    auto &names = plugin.info.commands;
    const auto place = std::find(names.begin(), names.end(), name);
    if (place == names.end())
        return false;
    process_.interpreter().commands().remove(name);
    names.erase(place);
    return true;
}

// A callback into a library that is gone ends Maya with a fatal error. Here it is only reported, so
// that a forgotten removal is found without a crash.
void Plugins::dropLeftovers(Plugin &plugin)
{
    for (const std::string &name : std::vector<std::string>(plugin.info.commands))
        removeCommand(plugin, name);
    Dl_info own = {};
    if (!dladdr(dlsym(plugin.library, "MApiVersion"), &own))
        return;
    const unsigned left = process_.callbacks().removeIf([&own](const void *function) {
        Dl_info info = {};
        return dladdr(function, &info) && info.dli_fbase == own.dli_fbase;
    });
    if (left > 0)
        process_.session().output().error("Plug-in, \"" + plugin.info.name +
                                          "\", left callbacks behind: " + std::to_string(left) +
                                          ".");
}

void Plugins::close(Plugin &plugin)
{
    dlclose(plugin.library);
    plugin.library = nullptr;
}

} // namespace host
