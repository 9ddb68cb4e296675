// SPDX-License-Identifier: Apache-2.0
// The dagPose node that remembers how a skeleton stood when it was bound.
#pragma once

#include <vector>

#include "scene/dagPath.h"
#include "scene/scene.h"

namespace host::mel
{

// Which of the poses that the influences belong to already will do: any, or only one in which all
// of them stand now (skinCluster -ignoreBindPose; that this is what the flag does is a guess).
enum class PoseChoice { any, asTheyStand };

// The bind pose that one of the influences belongs to already, or a new one. Influences that it
// does not know yet join it as they stand now, each after the transforms above it. Null if there
// are no influences.
NodePtr provideBindPose(Scene &scene, const std::vector<DagPath> &influences, PoseChoice choice);

} // namespace host::mel
