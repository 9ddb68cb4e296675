// SPDX-License-Identifier: Apache-2.0
#define MNoVersionString // the host is no plug-in
#include <maya/MFnPlugin.h>

#include "api/plugins.h"
#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::answer;
using host::Plugin;

namespace
{

std::shared_ptr<Plugin> pluginOf(const MFnBase &functionSet, MStatus *status = nullptr)
{
    const auto body = host::bodyOf<host::PluginBody>(functionSet);
    host::report(status, body ? MStatus::kSuccess : MStatus::kFailure);
    return body ? body->plugin : nullptr;
}

bool isAcceptable(const std::string &requiredVersion)
{
    return requiredVersion == "Any" || requiredVersion == std::to_string(MAYA_API_VERSION);
}

void introduce(Plugin &plugin, const char *vendor, const char *version, const char *requiredVersion)
{
    if (plugin.hasIntroducedSelf)
        return;
    plugin.hasIntroducedSelf = true;
    plugin.info.vendor = vendor ? vendor : "";
    plugin.info.version = version ? version : "";
    plugin.info.apiVersion = requiredVersion ? requiredVersion : "Any";
    plugin.isRefused = !isAcceptable(plugin.info.apiVersion);
}

MString infoText(const MFnBase &functionSet, std::string host::mel::PluginInfo::*member,
                 MStatus *status)
{
    const std::shared_ptr<Plugin> plugin = pluginOf(functionSet, status);
    return plugin ? host::toMString(plugin->info.*member) : MString();
}

} // namespace

MFnPlugin::MFnPlugin() = default;
MFnPlugin::~MFnPlugin() = default;
MFn::Type MFnPlugin::type() const
{
    return MFn::kPlugin;
}
const char *MFnPlugin::className()
{
    return "MFnPlugin";
}

MFnPlugin::MFnPlugin(MObject &object, const char *vendor, const char *version,
                     const char *requiredApiVersion, MStatus *ReturnStatus)
{
    MStatus status = setObject(object);
    if (const std::shared_ptr<Plugin> plugin = pluginOf(*this)) {
        introduce(*plugin, vendor, version, requiredApiVersion);
        if (plugin->isRefused)
            status = MStatus::kFailure;
    }
    host::report(ReturnStatus, status);
}

MString MFnPlugin::vendor(MStatus *ReturnStatus) const
{
    return infoText(*this, &host::mel::PluginInfo::vendor, ReturnStatus);
}
MString MFnPlugin::version(MStatus *ReturnStatus) const
{
    return infoText(*this, &host::mel::PluginInfo::version, ReturnStatus);
}
MString MFnPlugin::apiVersion(MStatus *ReturnStatus) const
{
    return infoText(*this, &host::mel::PluginInfo::apiVersion, ReturnStatus);
}
MString MFnPlugin::name(MStatus *ReturnStatus) const
{
    return infoText(*this, &host::mel::PluginInfo::name, ReturnStatus);
}

MString MFnPlugin::loadPath(MStatus *ReturnStatus) const
{
    const std::shared_ptr<Plugin> plugin = pluginOf(*this, ReturnStatus);
    const std::string path = plugin ? plugin->info.path : std::string();
    return host::toMString(path.substr(0, path.find_last_of('/')));
}

MStatus MFnPlugin::setName(const MString &newName, bool)
{
    const std::shared_ptr<Plugin> plugin = pluginOf(*this);
    host::Process *process = host::Process::current();
    const std::string name = host::toString(newName);
    if (!plugin || !process || name.empty() || process->plugins().find(name))
        return MStatus::kFailure;
    plugin->info.name = name;
    return MStatus::kSuccess;
}

MStatus MFnPlugin::setVersion(const MString &newVersion)
{
    const std::shared_ptr<Plugin> plugin = pluginOf(*this);
    if (!plugin)
        return MStatus::kFailure;
    plugin->info.version = host::toString(newVersion);
    return MStatus::kSuccess;
}

MStatus MFnPlugin::registerCommand(const MString &commandName, MCreatorFunction creatorFunction,
                                   MCreateSyntaxFunction createSyntaxFunction)
{
    const std::shared_ptr<Plugin> plugin = pluginOf(*this);
    host::Process *process = host::Process::current();
    if (!plugin || !process)
        return MStatus::kFailure;
    if (commandName.length() == 0 || !creatorFunction)
        return MStatus::kInvalidParameter;
    const bool isAdded = process->plugins().addCommand(plugin, host::toString(commandName),
                                                       creatorFunction, createSyntaxFunction);
    return isAdded ? MStatus::kSuccess : MStatus::kFailure;
}

MStatus MFnPlugin::deregisterCommand(const MString &commandName)
{
    const std::shared_ptr<Plugin> plugin = pluginOf(*this);
    host::Process *process = host::Process::current();
    const bool isRemoved =
        plugin && process && process->plugins().removeCommand(*plugin, host::toString(commandName));
    return isRemoved ? MStatus::kSuccess : MStatus::kFailure;
}

MObject MFnPlugin::findPlugin(const MString &pluginName)
{
    host::Process *process = host::Process::current();
    const std::shared_ptr<Plugin> plugin =
        process ? process->plugins().find(host::toString(pluginName)) : nullptr;
    return plugin ? host::makeObject(std::make_shared<host::PluginBody>(plugin)) : MObject();
}
