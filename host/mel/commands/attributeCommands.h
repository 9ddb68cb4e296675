// SPDX-License-Identifier: Apache-2.0
// The commands about attributes rather than their values, and what they share.
#pragma once

#include <string_view>

#include "mel/command.h"

namespace host::mel
{

void addAddAttrCommand(CommandTable &table);
void addAttributeQueryCommand(CommandTable &table);
void addListAttrCommand(CommandTable &table);
void addAliasAttrCommand(CommandTable &table);
void addDeleteAttrCommands(CommandTable &table);

// One fact about an attribute, by the long name of attributeQuery's flag ("minimum", "longName").
// REQUIRES: there is such a flag.
MelValue askAttribute(const Plug &plug, std::string_view question);

// Those that addAttr -query answers too.
constexpr const char *kAddAttrQueries[] = {
    "longName",         "shortName",   "niceName",     "attributeType",
    "dataType",         "multi",       "parent",       "keyable",
    "hidden",           "storable",    "readable",     "writable",
    "minValue",         "maxValue",    "softMinValue", "softMaxValue",
    "hasMinValue",      "hasMaxValue", "enumName",     "defaultValue",
    "numberOfChildren", "usedAsColor", "indexMatters", "cachedInternally"};

} // namespace host::mel
