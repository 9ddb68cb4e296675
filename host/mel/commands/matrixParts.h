// SPDX-License-Identifier: Apache-2.0
// From a matrix back to the values of a transform: what xform -matrix and parent need.
//
// Row vectors, as in transform.h: linear part = scale * shear * rotation.
#pragma once

#include "scene/rotation.h"
#include "scene/scene.h"
#include "scene/transform.h"

namespace host::mel
{

struct MatrixParts {
    skin::Vec3 scale{1, 1, 1};
    skin::Vec3 shear{0, 0, 0};         // xy, xz, yz
    Matrix rotation = kIdentityMatrix; // proper: determinant 1
};

// REQUIRES: an affine matrix. One without an inverse gives a scale with zeros and no rotation.
MatrixParts partsOf(const Matrix &matrix);

void setVector(Scene &scene, const NodePtr &transform, std::string_view attribute,
               const skin::Vec3 &value);

// What takes the turn when a matrix is given to a joint: its rotate, or its jointOrient, which
// leaves an animated rotate alone.
enum class TurnJointBy { rotate, jointOrient };

// Gives the transform values whose local matrix is `matrix`. Pivots, rotateAxis and rotateOrder
// stay as they are. Recorded.
void setLocalMatrix(Scene &scene, const NodePtr &transform, const Matrix &matrix,
                    TurnJointBy turnJointBy = TurnJointBy::rotate);
void setWorldMatrix(Scene &scene, const DagPath &transform, const Matrix &matrix,
                    TurnJointBy turnJointBy = TurnJointBy::rotate);

} // namespace host::mel
