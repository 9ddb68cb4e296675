// SPDX-License-Identifier: Apache-2.0
// What the plug-in commands of MEL (loadPlugin, unloadPlugin, pluginInfo) need from the layer that
// knows how a plug-in looks inside.
//
// The commands find the file and decide whether a plug-in may come or go; the loader opens the
// library, calls its entry points and keeps the list. It lives as long as the interpreter uses it.
#pragma once

#include <string>
#include <vector>

namespace host::mel
{

struct PluginInfo {
    std::string name; // as scripts call it: the file's name without extension, or as given
    std::string path; // absolute
    std::string vendor;
    std::string version;
    std::string apiVersion;            // as the plug-in demands it: "Any", "201602"
    std::vector<std::string> commands; // registered ones, in the order of registration
};

class PluginLoader
{
public:
    virtual ~PluginLoader() = default;

    // Opens the library at `path` (absolute, it exists), checks the release that it exports as
    // `MApiVersion`, and runs its `initializePlugin`, which adds commands to the table. Throws
    // Error with the reason, and then leaves neither the library nor a command behind.
    // REQUIRES: no plug-in `name` is loaded.
    virtual void load(const std::string &path, const std::string &name) = 0;

    // Runs `uninitializePlugin`, takes away the commands that are left and closes the library.
    // Throws Error if the plug-in refuses; it stays loaded then, unless `force` is true.
    // REQUIRES: `name` is loaded and use(name) is Use::none.
    virtual void unload(const std::string &name, bool force) = 0;

    // What still runs the plug-in's code, the strongest reason first: one of its commands that
    // has not come back yet, or command objects that the undo queue keeps.
    enum class Use { none, undoQueue, running };
    virtual Use use(const std::string &name) const = 0;

    // Loaded plug-ins in the order in which they came.
    virtual std::vector<PluginInfo> plugins() const = 0;
};

} // namespace host::mel
