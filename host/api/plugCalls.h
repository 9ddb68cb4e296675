// SPDX-License-Identifier: Apache-2.0
// What the sources of MPlug share.
#pragma once

#include <maya/MPlug.h>

#include "api/nodeBody.h"
#include "api/status.h"
#include "scene/node.h"

namespace host
{

// The plug, with the status of a call on it; null if it is null or its node is gone.
inline const Plug *plugFor(const MPlug &plug, MStatus *status)
{
    const Plug *found = plugOf(plug);
    report(status, found ? MStatus::kSuccess : MStatus::kFailure);
    return found;
}

inline bool isConnectedPlug(const Plug &plug)
{
    return plug.node->source(plug) || !plug.node->destinations(plug).empty();
}

// The plug if it has one value (no array, no compound, no index missing), else null.
inline const Plug *leafOf(const MPlug &plug)
{
    const Plug *found = plugOf(plug);
    const bool isLeaf = found && !found->attribute->isCompound() && found->isComplete() &&
                        found->attribute->kind != AttributeKind::message;
    return isLeaf ? found : nullptr;
}

inline bool isStringPlug(const Plug &plug)
{
    return plug.attribute->kind == AttributeKind::string || plug.attribute->isLearned();
}

inline bool isNumberPlug(const Plug &plug)
{
    return plug.attribute->isNumber() || plug.attribute->isLearned();
}

} // namespace host
