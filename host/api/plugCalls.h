// SPDX-License-Identifier: Apache-2.0
// What the sources of MPlug share.
#pragma once

#include <utility>

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

// True if `ancestor` is the attribute itself or lies above it.
inline bool isAtOrAbove(const Attribute *ancestor, const Attribute *attribute)
{
    for (const Attribute *step = attribute; step; step = step->parent)
        if (step == ancestor)
            return true;
    return false;
}

// A plug that a call made from another one: networked if that one is.
inline MPlug derived(const MPlug &from, Plug plug)
{
    return toMPlug(std::move(plug), from.isNetworked());
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
