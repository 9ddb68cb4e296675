// SPDX-License-Identifier: Apache-2.0
// Where transforms are and how they lie, in the world and below their parent.
#pragma once

#include "mel/command.h"
#include "scene/transform.h"

namespace host::mel
{

// The world position of a transform's rotate pivot, which is what Maya moves and asks for.
skin::Vec3 worldPosition(const DagPath &transform);
void setWorldPosition(Scene &scene, const DagPath &transform, const skin::Vec3 &position);

// Angles in degrees, in the transform's own rotate order.
skin::Vec3 worldRotation(const DagPath &transform);
void setWorldRotation(Scene &scene, const DagPath &transform, const skin::Vec3 &degrees);

// The rotations that a transform's axes go through on their way into the world, in this order:
// rotateAxis, rotate, and what comes after it (jointOrient of a joint, the parents).
struct Turns {
    Matrix axis;
    Matrix own;
    Matrix after;
};
Turns turnsOf(const DagPath &transform);
// Sets `rotate`.
void setOwnTurn(Scene &scene, const DagPath &transform, const Matrix &own);

void addXformCommand(CommandTable &table);

} // namespace host::mel
