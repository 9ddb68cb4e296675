// SPDX-License-Identifier: Apache-2.0
// What a flood of the skin paint tool works on, and the flood itself.
#pragma once

#include "mel/command.h"
#include "scene/toolState.h"

namespace host::mel
{

// Whether the node is an influence of any skin cluster.
bool isInfluence(const Node &node);

// Applies the brush to the current influence on each skinned mesh that is selected: on its selected
// vertices or, without any, on all. A locked influence takes no paint; meshes that it does not move
// are left alone. The other weights follow as for any write; what could not be met gives one
// warning. Refused, before anything is written: no influence, no skinned mesh with it selected, and
// smoothing where faces are not known.
void floodWeights(Context &context, const SkinPaintTool &tool);

} // namespace host::mel
