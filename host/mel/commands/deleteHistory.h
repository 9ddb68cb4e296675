// SPDX-License-Identifier: Apache-2.0
// delete -constructionHistory: keeps what a shape shows and drops the nodes that made it.
#pragma once

#include "scene/scene.h"

namespace host::mel
{

// Of the meshes below `node`, or the mesh itself. Works where the history only makes geometry; a
// deformed mesh is refused, since its deformed points are not known here. Recorded.
void deleteHistory(Scene &scene, const NodePtr &node);

} // namespace host::mel
