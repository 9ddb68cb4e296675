// SPDX-License-Identifier: Apache-2.0
// A deformer between a mesh and what feeds it, wired as Maya wires deformers with a set:
//
//   shapeOrig -> groupParts -> tweak -> groupParts -> deformer -> shape
//
// Each deformer owns an objectSet whose members are the shape's points, a groupId that names that
// group to all concerned, and a groupParts node that cuts the incoming geometry down to it.
#pragma once

#include <string>

#include "scene/dagPath.h"
#include "scene/scene.h"

namespace host::mel
{

// "input[0].groupId" of a node. REQUIRES: there is such a plug.
Plug plugAt(const NodePtr &node, std::string_view path);

// Gives a new mesh what another one stores of its geometry.
void copyGeometry(Scene &scene, const NodePtr &from, const NodePtr &to);

// Puts a deformer that has no connections yet in front of a shape, behind the deformers that are
// there. The first one gets a tweak before it; the geometry that the shape stored or was fed with
// moves to a new intermediate shape "...Orig". The set, the groupId and the groupParts are named
// after the deformer.
void attachDeformer(Scene &scene, const NodePtr &deformer, const DagPath &shape);

// Deletes a deformer with its set and group nodes; what came before it feeds the shape again. If
// nothing but the tweak is left, the shape gets its own geometry back and the intermediate shape
// goes.
void detachDeformer(Scene &scene, const NodePtr &deformer);

} // namespace host::mel
