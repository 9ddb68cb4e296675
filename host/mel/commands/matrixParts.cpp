// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/matrixParts.h"

#include <array>
#include <cmath>

namespace host::mel
{

namespace
{

using skin::Vec3;

// What a matrix product and its way back leave of values that did not change.
constexpr double kNoise = 1e-12;

Vec3 row(const Matrix &matrix, std::size_t index)
{
    return {matrix[index * 4], matrix[index * 4 + 1], matrix[index * 4 + 2]};
}

Vec3 cross(const Vec3 &a, const Vec3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Matrix fromRows(const std::array<Vec3, 3> &rows)
{
    Matrix matrix = kIdentityMatrix;
    for (std::size_t i = 0; i < 3; ++i) {
        matrix[i * 4] = rows[i].x;
        matrix[i * 4 + 1] = rows[i].y;
        matrix[i * 4 + 2] = rows[i].z;
    }
    return matrix;
}

Matrix linearPart(Matrix matrix)
{
    matrix[12] = matrix[13] = matrix[14] = 0.0;
    return matrix;
}

void turnJoint(Scene &scene, const NodePtr &joint, const Matrix &turn, TurnJointBy by)
{
    const int order = rotateOrderOf(*joint);
    const Matrix axis = rotationOf(vectorOf(*joint, "rotateAxis"), 0);
    if (by == TurnJointBy::jointOrient) {
        const Matrix own = multiply(axis, rotationOf(vectorOf(*joint, "rotate"), order));
        setVector(scene, joint, "jointOrient", anglesOf(multiply(inverse(own), turn), 0));
        return;
    }
    const Matrix orient = rotationOf(vectorOf(*joint, "jointOrient"), 0);
    const Matrix own = multiply(multiply(inverse(axis), turn), inverse(orient));
    setVector(scene, joint, "rotate", anglesOf(own, order));
}

// The part of a joint's matrix that the scale of its parent takes back.
Matrix withoutCompensation(const Node &joint, const Matrix &matrix)
{
    if (evaluateNumber(joint.plug("segmentScaleCompensate")) == 0.0)
        return matrix;
    const Vec3 above = vectorOf(joint, "inverseScale");
    Matrix scaling = kIdentityMatrix;
    scaling[0] = above.x;
    scaling[5] = above.y;
    scaling[10] = above.z;
    return multiply(matrix, scaling);
}

} // namespace

// Imath has this too, but gives back plain scales less often to the bit, and none where one is 0.
MatrixParts partsOf(const Matrix &matrix)
{
    MatrixParts parts;
    std::array<Vec3, 3> rows = {row(matrix, 0), row(matrix, 1), row(matrix, 2)};
    // Gram and Schmidt: what a row has of those above it is shear.
    parts.scale.x = std::sqrt(dot(rows[0], rows[0]));
    rows[0] = rows[0] * (parts.scale.x == 0.0 ? 0.0 : 1.0 / parts.scale.x);
    const double xy = dot(rows[1], rows[0]);
    rows[1] = rows[1] - rows[0] * xy;
    parts.scale.y = std::sqrt(dot(rows[1], rows[1]));
    rows[1] = rows[1] * (parts.scale.y == 0.0 ? 0.0 : 1.0 / parts.scale.y);
    const double xz = dot(rows[2], rows[0]);
    const double yz = dot(rows[2], rows[1]);
    rows[2] = rows[2] - rows[0] * xz - rows[1] * yz;
    parts.scale.z = std::sqrt(dot(rows[2], rows[2]));
    if (parts.scale.x == 0.0 || parts.scale.y == 0.0 || parts.scale.z == 0.0)
        return parts;
    rows[2] = rows[2] * (1.0 / parts.scale.z);
    parts.shear = {xy / parts.scale.y, xz / parts.scale.z, yz / parts.scale.z};
    if (dot(cross(rows[0], rows[1]), rows[2]) < 0.0) { // mirrored
        parts.scale = parts.scale * -1.0;
        for (Vec3 &axis : rows)
            axis = axis * -1.0;
    }
    parts.rotation = fromRows(rows);
    return parts;
}

void setVector(Scene &scene, const NodePtr &transform, std::string_view attribute,
               const Vec3 &value)
{
    const Plug plug = transform->plug(attribute);
    const double numbers[3] = {value.x, value.y, value.z};
    for (std::size_t i = 0; i < 3; ++i) {
        const Plug leaf = plug.child(plug.attribute->children[i]);
        const double before = evaluateNumber(leaf);
        if (std::fabs(before - numbers[i]) <= kNoise * std::fmax(1.0, std::fabs(before)))
            continue; // may be locked then
        if (!isSettable(leaf))
            throw Error("The attribute '" + leaf.name() +
                        "' is locked or connected and cannot be modified.");
        scene.setValue(leaf, numbers[i]);
    }
}

void setLocalMatrix(Scene &scene, const NodePtr &transform, const Matrix &matrix,
                    TurnJointBy turnJointBy)
{
    const bool isJoint = transform->isA("joint");
    const MatrixParts parts =
        partsOf(linearPart(isJoint ? withoutCompensation(*transform, matrix) : matrix));
    setVector(scene, transform, "scale", parts.scale);
    if (!isJoint) // a joint has no shear in its matrix
        setVector(scene, transform, "shear", parts.shear);
    if (isJoint) {
        turnJoint(scene, transform, parts.rotation, turnJointBy);
    } else {
        const Matrix axis = rotationOf(vectorOf(*transform, "rotateAxis"), 0);
        setVector(scene, transform, "rotate",
                  anglesOf(multiply(inverse(axis), parts.rotation), rotateOrderOf(*transform)));
    }
    // The translation comes last in the product: what pivots leave of it is added.
    const Vec3 now = translationOf(localMatrix(*transform));
    const Vec3 rest = translationOf(matrix) - now;
    setVector(scene, transform, "translate", vectorOf(*transform, "translate") + rest);
}

void setWorldMatrix(Scene &scene, const DagPath &transform, const Matrix &matrix,
                    TurnJointBy turnJointBy)
{
    const Matrix above = parentMatrix(transform);
    setLocalMatrix(scene, transform.node(), multiply(matrix, inverse(above)), turnJointBy);
}

} // namespace host::mel
