// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/attributeAlias.h"

#include <algorithm>

#include "mel/commands/attributeCommands.h"
#include "mel/commands/attributeValues.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

constexpr const char *kAttribute = "attributeAliasList";

// The strings in {"smile","weight[0]"}.
std::vector<std::string> stringsIn(std::string_view text)
{
    std::vector<std::string> strings;
    bool isInside = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            isInside = !isInside;
            if (isInside)
                strings.emplace_back();
        } else if (isInside) {
            i += text[i] == '\\' && i + 1 < text.size();
            strings.back() += text[i];
        }
    }
    return strings;
}

bool isLegalAlias(std::string_view alias)
{
    return !alias.empty() && std::isdigit(static_cast<unsigned char>(alias.front())) == 0 &&
           std::all_of(alias.begin(), alias.end(),
                       [](unsigned char c) { return std::isalnum(c) || c == '_' || c >= 0x80; });
}

void setAlias(Context &context, std::string_view alias, std::string_view target)
{
    const Plug plug = requireSinglePlug(context, target);
    if (!isLegalAlias(alias))
        throw Error("aliasAttr: '" + std::string(alias) + "' is no legal name.");
    AliasList aliases = aliasesOf(*plug.node);
    const std::string path = plug.path();
    const auto isOther = [&](const AliasList::value_type &entry) {
        return entry.first == alias && entry.second != path;
    };
    if (plug.node->findAttribute(alias) || std::any_of(aliases.begin(), aliases.end(), isOther))
        throw Error("aliasAttr: '" + std::string(alias) + "' is in use on '" +
                    plug.node->uniqueName() + "' already.");
    const auto isSame = [&path](const AliasList::value_type &entry) {
        return entry.second == path;
    };
    aliases.erase(std::remove_if(aliases.begin(), aliases.end(), isSame), aliases.end());
    aliases.emplace_back(alias, path);
    setAliases(context.scene(), plug.node, aliases);
}

void removeAlias(Context &context, std::string_view name)
{
    const Plug plug = requireSinglePlug(context, name);
    AliasList aliases = aliasesOf(*plug.node);
    const auto isIts = [path = plug.path()](const AliasList::value_type &entry) {
        return entry.second == path;
    };
    const auto kept = std::remove_if(aliases.begin(), aliases.end(), isIts);
    if (kept == aliases.end())
        throw Error("aliasAttr: '" + std::string(name) + "' has no alias.");
    aliases.erase(kept, aliases.end());
    setAliases(context.scene(), plug.node, aliases);
}

// Of a node alias and attribute in turn; of an attribute its alias.
MelValue query(Context &context, std::string_view name)
{
    const PlugName parts = splitPlugName(name);
    const AliasList aliases = aliasesOf(*requireNode(context, parts.node));
    if (parts.attribute.empty()) {
        std::vector<std::string> all;
        for (const auto &[alias, path] : aliases) {
            all.push_back(alias);
            all.push_back(path);
        }
        return all;
    }
    const std::string wanted = requireSinglePlug(context, name).path();
    for (const auto &[alias, path] : aliases) {
        if (path == wanted)
            return alias;
    }
    return std::string();
}

MelValue aliasAttr(Context &context, const Arguments &arguments)
{
    const std::vector<Operand> &objects = arguments.objects;
    if (arguments.isQuery())
        return query(context, objects.front().text);
    if (arguments.has("remove")) {
        for (const Operand &object : objects)
            removeAlias(context, object.text);
        return MelValue();
    }
    if (objects.size() % 2 != 0)
        throw Error("Wrong number of arguments on call to aliasAttr.");
    for (std::size_t i = 0; i < objects.size(); i += 2)
        setAlias(context, objects[i].text, objects[i + 1].text);
    return MelValue();
}

} // namespace

AliasList aliasesOf(const Node &node)
{
    AliasList aliases;
    const AttributePtr attribute = node.findAttribute(kAttribute);
    if (!attribute)
        return aliases;
    const Value stored = node.storedValue(node.plug(kAttribute));
    const OpaqueValue *value = std::get_if<OpaqueValue>(&stored);
    const std::vector<std::string> strings = stringsIn(value ? value->text : "");
    for (std::size_t i = 0; i + 1 < strings.size(); i += 2)
        aliases.emplace_back(strings[i], strings[i + 1]);
    return aliases;
}

std::string resolveAlias(const Node &node, std::string_view alias)
{
    for (const auto &[name, path] : aliasesOf(node)) {
        if (name == alias)
            return path;
    }
    return std::string();
}

void setAliases(Scene &scene, const NodePtr &node, const AliasList &aliases)
{
    if (!node->findAttribute(kAttribute)) {
        const NewAttributePtr attribute = makeAttribute(kAttribute, "aal", "attributeAlias");
        attribute->isDynamic = attribute->isDataType = true;
        scene.addAttribute(node, attribute);
    }
    std::string text = "{";
    for (const auto &[alias, path] : aliases)
        text += (text.size() > 1 ? "," : "") + quoted(alias) + ',' + quoted(path);
    scene.setValue(node->plug(kAttribute), OpaqueValue{"attributeAlias", text + '}'});
}

void addAliasAttrCommand(CommandTable &table)
{
    table.add({"aliasAttr",
               {{"rm", "remove"}},
               aliasAttr,
               {1, Objects::kAny},
               Modes::create | Modes::query,
               Objects{1, 1}});
}

} // namespace host::mel
