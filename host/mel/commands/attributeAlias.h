// SPDX-License-Identifier: Apache-2.0
// Aliases: second names of attributes ("smile" for weight[3]).
//
// Maya keeps them in the data of a dynamic attribute of the node, attributeAliasList, and writes
// them as such; so they come and go with files and undo like any other value.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "scene/scene.h"

namespace host::mel
{

// Alias and plug path ("smile", "weight[3]"), in the order in which they were made.
using AliasList = std::vector<std::pair<std::string, std::string>>;

AliasList aliasesOf(const Node &node);
// The plug path behind an alias; empty if the node has no such alias.
std::string resolveAlias(const Node &node, std::string_view alias);
// Replaces the node's aliases; adds the attribute that keeps them. Recorded.
void setAliases(Scene &scene, const NodePtr &node, const AliasList &aliases);

} // namespace host::mel
