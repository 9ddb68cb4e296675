// SPDX-License-Identifier: Apache-2.0
// The dagPose node that remembers how a skeleton stood when it was bound.
#pragma once

#include <vector>

#include "scene/dagPath.h"
#include "scene/scene.h"

namespace host::mel
{

// The bind pose that one of the influences belongs to already, or a new one. Influences that it
// does not know yet join it as they stand now, each after the transforms above it. Null if there
// are no influences.
NodePtr provideBindPose(Scene &scene, const std::vector<DagPath> &influences);

} // namespace host::mel
