// SPDX-License-Identifier: Apache-2.0
#include "scene/transform.h"

#include <cmath>
#include <unordered_map>

#include "scene/rotation.h"
#include "scene/scene.h"

namespace host
{

namespace
{

Matrix translation(const skin::Vec3 &offset)
{
    Matrix matrix = kIdentityMatrix;
    matrix[12] = offset.x;
    matrix[13] = offset.y;
    matrix[14] = offset.z;
    return matrix;
}

skin::Vec3 negated(const skin::Vec3 &v)
{
    return {-v.x, -v.y, -v.z};
}

Matrix scaling(const skin::Vec3 &scale)
{
    Matrix matrix = kIdentityMatrix;
    matrix[0] = scale.x;
    matrix[5] = scale.y;
    matrix[10] = scale.z;
    return matrix;
}

Matrix shearing(const skin::Vec3 &shear)
{
    Matrix matrix = kIdentityMatrix;
    matrix[4] = shear.x; // xy
    matrix[8] = shear.y; // xz
    matrix[9] = shear.z; // yz
    return matrix;
}

Matrix jointMatrix(const Node &joint)
{
    Matrix matrix = scaling(vectorOf(joint, "scale"));
    matrix = multiply(matrix, rotationOf(vectorOf(joint, "rotateAxis")));
    matrix = multiply(matrix, rotationOf(vectorOf(joint, "rotate"), rotateOrderOf(joint)));
    matrix = multiply(matrix, rotationOf(vectorOf(joint, "jointOrient")));
    if (evaluateNumber(joint.plug("segmentScaleCompensate")) != 0.0) {
        const skin::Vec3 above = vectorOf(joint, "inverseScale");
        matrix = multiply(matrix, inverse(scaling(above)));
    }
    return multiply(matrix, translation(vectorOf(joint, "translate")));
}

// World matrices may feed each other through offsetParentMatrix, side by side and in circles. While
// the outermost is evaluated, what arrives at each such plug is kept; it is the identity where it
// would depend on itself.
class OffsetMemory
{
public:
    OffsetMemory() { ++depth; }
    ~OffsetMemory()
    {
        if (--depth == 0)
            known.clear();
    }
    OffsetMemory(const OffsetMemory &) = delete;
    OffsetMemory &operator=(const OffsetMemory &) = delete;

    static Matrix connectedMatrix(const Plug &offset)
    {
        const auto [entry, isNew] = known.try_emplace(offset.node.get(), kIdentityMatrix);
        if (!isNew)
            return entry->second;
        const Value value = evaluate(offset);
        if (const Matrix *matrix = std::get_if<Matrix>(&value))
            known[offset.node.get()] = *matrix;
        return known[offset.node.get()];
    }

private:
    static thread_local std::unordered_map<const Node *, Matrix> known;
    static thread_local unsigned depth;
};

thread_local std::unordered_map<const Node *, Matrix> OffsetMemory::known;
thread_local unsigned OffsetMemory::depth = 0;

Matrix offsetParentMatrix(const Node &transform)
{
    if (!transform.isA("transform"))
        return kIdentityMatrix;
    const Plug offset = transform.plug("offsetParentMatrix");
    if (transform.source(offset))
        return OffsetMemory::connectedMatrix(offset);
    const Value stored = transform.storedValue(offset);
    const Matrix *matrix = std::get_if<Matrix>(&stored);
    return matrix ? *matrix : kIdentityMatrix;
}

double determinant3(const Matrix &m)
{
    return m[0] * (m[5] * m[10] - m[6] * m[9]) - m[1] * (m[4] * m[10] - m[6] * m[8]) +
           m[2] * (m[4] * m[9] - m[5] * m[8]);
}

} // namespace

skin::Vec3 vectorOf(const Node &node, std::string_view attribute)
{
    const Plug plug = node.plug(attribute);
    double numbers[3];
    for (std::size_t i = 0; i < 3; ++i)
        numbers[i] = evaluateNumber(plug.child(plug.attribute->children[i]));
    return {numbers[0], numbers[1], numbers[2]};
}

int rotateOrderOf(const Node &node)
{
    const int order = int(evaluateNumber(node.plug("rotateOrder")));
    return order >= 0 && order < 6 ? order : 0;
}

Matrix multiply(const Matrix &a, const Matrix &b)
{
    Matrix product{};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            for (std::size_t k = 0; k < 4; ++k)
                product[row * 4 + column] += a[row * 4 + k] * b[k * 4 + column];
        }
    }
    return product;
}

// All matrices here are affine: the last column is 0 0 0 1.
Matrix inverse(const Matrix &m)
{
    const double determinant = determinant3(m);
    if (determinant == 0.0 || !std::isfinite(determinant))
        return kIdentityMatrix;
    Matrix result = kIdentityMatrix;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            // Cofactor of the transposed place, with cyclic neighbours: the signs fall out.
            const std::size_t r1 = (column + 1) % 3, r2 = (column + 2) % 3;
            const std::size_t c1 = (row + 1) % 3, c2 = (row + 2) % 3;
            result[row * 4 + column] =
                (m[r1 * 4 + c1] * m[r2 * 4 + c2] - m[r1 * 4 + c2] * m[r2 * 4 + c1]) / determinant;
        }
    }
    for (std::size_t column = 0; column < 3; ++column) {
        result[12 + column] = 0.0;
        for (std::size_t k = 0; k < 3; ++k)
            result[12 + column] -= m[12 + k] * result[k * 4 + column];
    }
    return result;
}

skin::Vec3 transformPoint(const skin::Vec3 &p, const Matrix &m)
{
    return {p.x * m[0] + p.y * m[4] + p.z * m[8] + m[12],
            p.x * m[1] + p.y * m[5] + p.z * m[9] + m[13],
            p.x * m[2] + p.y * m[6] + p.z * m[10] + m[14]};
}

skin::Vec3 translationOf(const Matrix &matrix)
{
    return {matrix[12], matrix[13], matrix[14]};
}

Matrix localMatrix(const Node &transform)
{
    if (!transform.isA("transform"))
        return kIdentityMatrix;
    if (transform.isA("joint"))
        return jointMatrix(transform);
    const skin::Vec3 scalePivot = vectorOf(transform, "scalePivot");
    const skin::Vec3 rotatePivot = vectorOf(transform, "rotatePivot");
    const Matrix factors[] = {
        translation(negated(scalePivot)),
        scaling(vectorOf(transform, "scale")),
        shearing(vectorOf(transform, "shear")),
        translation(scalePivot),
        translation(vectorOf(transform, "scalePivotTranslate")),
        translation(negated(rotatePivot)),
        rotationOf(vectorOf(transform, "rotateAxis")),
        rotationOf(vectorOf(transform, "rotate"), rotateOrderOf(transform)),
        translation(rotatePivot),
        translation(vectorOf(transform, "rotatePivotTranslate")),
        translation(vectorOf(transform, "translate")),
    };
    Matrix matrix = kIdentityMatrix;
    for (const Matrix &factor : factors)
        matrix = multiply(matrix, factor);
    return matrix;
}

Matrix worldMatrix(const DagPath &path)
{
    const OffsetMemory memory;
    Matrix matrix = kIdentityMatrix;
    for (auto node = path.nodes().rbegin(); node != path.nodes().rend(); ++node) {
        matrix = multiply(matrix, localMatrix(**node));
        matrix = multiply(matrix, offsetParentMatrix(**node));
        if ((*node)->isA("transform") && evaluateNumber((*node)->plug("inheritsTransform")) == 0.0)
            break;
    }
    return matrix;
}

Matrix parentMatrix(const DagPath &path)
{
    const OffsetMemory memory;
    return multiply(offsetParentMatrix(*path.node()), worldMatrix(path.parent()));
}

void setWorldTranslation(Scene &scene, const DagPath &transform, const skin::Vec3 &position)
{
    const skin::Vec3 local = transformPoint(position, inverse(parentMatrix(transform)));
    const Plug translate = transform.node()->plug("translate");
    const double numbers[3] = {local.x, local.y, local.z};
    for (std::size_t i = 0; i < 3; ++i)
        scene.setValue(translate.child(translate.attribute->children[i]), numbers[i]);
}

} // namespace host
