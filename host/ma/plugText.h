// SPDX-License-Identifier: Apache-2.0
// How a file names nodes, attributes and flags.
#pragma once

#include <string>

#include "scene/node.h"

namespace host::ma
{

// Which of a flag's two names the file uses: all short or, on request, all long.
struct FlagNames {
    bool areLong = false;
    const char *operator()(const char *shortName, const char *longName) const
    {
        return areLong ? longName : shortName;
    }
};

// ":lambert1" for a node that is always there, else the shortest unique name: "hip", "left|hip".
std::string nodeText(const Node &node);

// The node as createNode -p names it: its name, or a rooted path where that means several.
std::string parentText(const NodePtr &node);

// "wl[3].w[0]", without node and dot. Compounds that are no arrays go without saying where the
// child's name alone is clear: "tx", not "t.tx".
std::string plugPath(const Plug &plug, bool longNames);

// "hip.wm": a plug as connectAttr names it. Of arrays with an element per instance the index is
// left out; the path of the node says which instance it is.
std::string plugName(const Plug &plug, bool longNames);

// The order in which the connections into one node are written. It is that of the attributes, but
// learned ones go by their names: the order in which a file brought them would change from one
// saving to the next.
bool isWrittenBefore(const PlugKey &first, const PlugKey &second);

} // namespace host::ma
