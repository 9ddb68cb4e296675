// SPDX-License-Identifier: Apache-2.0
// Loaded plug-ins: their libraries, entry points and commands.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <maya/MTypes.h>

#include "api/objectBody.h"
#include "mel/pluginLoader.h"

namespace host
{

class Process;

// One plug-in. MFnPlugin works on it through a PluginBody.
struct Plugin {
    mel::PluginInfo info;
    void *library = nullptr;        // of dlopen; closed by Plugins
    bool hasIntroducedSelf = false; // vendor and version are those of the first MFnPlugin
    bool isRefused = false;         // demands another release of the API
    int commandObjects = 0;         // alive: running, or kept by the undo queue
    int runningCommands = 0;
};

class PluginBody : public ObjectBody
{
public:
    explicit PluginBody(std::shared_ptr<Plugin> thePlugin) : plugin(std::move(thePlugin)) {}
    MFn::Type apiType() const override { return MFn::kPlugin; }
    bool hasFn(MFn::Type type) const override { return type == MFn::kPlugin || type == MFn::kBase; }
    bool sameAs(const ObjectBody &other) const override;

    const std::shared_ptr<Plugin> plugin;
};

class Plugins : public mel::PluginLoader
{
public:
    explicit Plugins(Process &process) : process_(process) {}
    ~Plugins() override;
    Plugins(const Plugins &) = delete;
    Plugins &operator=(const Plugins &) = delete;

    void load(const std::string &path, const std::string &name) override;
    void unload(const std::string &name, bool force) override;
    Use use(const std::string &name) const override;
    std::vector<mel::PluginInfo> plugins() const override;

    // The last loaded first; whether they agree or not.
    void unloadAll();
    std::shared_ptr<Plugin> find(const std::string &name) const; // null if it is not loaded

    // Adds a command that `plugin` implements; false if the name is taken.
    bool addCommand(const std::shared_ptr<Plugin> &plugin, const std::string &name,
                    MCreatorFunction creator, MCreateSyntaxFunction createSyntax);
    // False if the command is none of this plug-in's.
    bool removeCommand(Plugin &plugin, const std::string &name);

private:
    void initialize(const std::shared_ptr<Plugin> &plugin);
    void dropLeftovers(Plugin &plugin);
    void close(Plugin &plugin);

    Process &process_;
    std::vector<std::shared_ptr<Plugin>> loaded_; // in order of loading
};

} // namespace host
