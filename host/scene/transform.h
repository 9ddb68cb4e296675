// SPDX-License-Identifier: Apache-2.0
// Matrices of transforms and joints, as Maya composes them (transform and joint node reference):
// row vectors, p' = p * M.
//
//   transform: S * Sh * R(ro) * T with scale and rotate pivots around them
//   joint:     S * R(ra) * R(r) * R(jo) * IS * T, IS = inverse of the parent's scale if
//              segmentScaleCompensate is on
//   world:     local * offsetParentMatrix * world of the parent
#pragma once

#include <string_view>

#include "scene/dagPath.h"
#include "scene/value.h"
#include "skin/vec3.h"

namespace host
{

class Scene;

Matrix multiply(const Matrix &a, const Matrix &b);
// The identity where the matrix has no inverse.
Matrix inverse(const Matrix &matrix);
skin::Vec3 transformPoint(const skin::Vec3 &point, const Matrix &matrix);
skin::Vec3 translationOf(const Matrix &matrix);

// The three numbers of a transform's attribute ("translate").
skin::Vec3 vectorOf(const Node &transform, std::string_view attribute);
int rotateOrderOf(const Node &transform); // 0 to 5

Matrix localMatrix(const Node &transform);
Matrix worldMatrix(const DagPath &path); // of the path's last transform
// What takes the space of the last transform's local matrix to the world: its offsetParentMatrix
// and the world matrix of its parent.
Matrix parentMatrix(const DagPath &path);
// Sets translate so that the transform's origin lies at a world position.
void setWorldTranslation(Scene &scene, const DagPath &transform, const skin::Vec3 &position);

} // namespace host
