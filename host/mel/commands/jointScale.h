// SPDX-License-Identifier: Apache-2.0
// How joints of a skeleton are tied together.
#pragma once

#include "scene/scene.h"

namespace host::mel
{

// A joint takes back its parent joint's scale: connects that of its new parent (null: the world) in
// place of the old one's. What somebody else connected stays, and so does any node that is no
// joint.
void connectInverseScale(Scene &scene, const NodePtr &child, const NodePtr &newParent);

} // namespace host::mel
