// SPDX-License-Identifier: Apache-2.0
// Wireframe colours of DAG nodes. The numbers stand for Maya's default preferences, which are not
// published: they are guesses.
#pragma once

#include <maya/MColor.h>

#include "scene/node.h"

namespace host
{

// Not selected: the override or object colour of the node, else the colour of its kind. The hilite
// list is not looked at.
MColor objectColor(const Node &node);
constexpr float kActiveColor[3] = {0.26f, 1.0f, 0.64f}; // selected
constexpr float kHiliteColor[3] = {0.47f, 0.73f, 1.0f}; // in component mode

} // namespace host
