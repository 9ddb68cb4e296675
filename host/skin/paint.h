// SPDX-License-Identifier: Apache-2.0
//
// What a flood of the skin paint tool makes of the current influence's weights. It computes values
// only: the caller writes them with writeWeights, the current influence assigned, so that the other
// influences follow by normalisation. Operations, opacity and clamping are those of Maya's command
// reference, artAttrSkinPaintCtx; the formulas of replace, add and scale are inferred from its
// wording.

#pragma once

#include "skin/adjacency.h"
#include "skin/weightStore.h"

#include <cstdint>
#include <vector>

namespace host::skin
{

// The names of -selectedattroper: absolute, additive, scale, smooth.
enum class PaintOperation { replace, add, scale, smooth };

struct PaintSettings {
    PaintOperation operation = PaintOperation::replace;
    double value = 0;   // not used by smooth
    double opacity = 1; // fraction of the effect, 0..1
    bool clampLower = false;
    bool clampUpper = false;
    double minValue = 0; // used if clampLower
    double maxValue = 1; // used if clampUpper
};

// The new weight of a vertex that holds `weight`. `target` is the paint value, for smooth the mean
// of the neighbours.
double paintedWeight(double weight, double target, const PaintSettings &settings);

// The new weights of one influence (LOGICAL index) for `vertices`, in their order, all from the
// weights as they are now. Smooth averages over the edge-connected neighbours that have a row, in
// `vertices` or not, and leaves a vertex without such neighbours alone.
// A locked influence receives no paint in Maya: the caller then does not call this.
std::vector<double> paintedWeights(const WeightStore &weights, const Adjacency &adjacency,
                                   const std::vector<std::uint32_t> &vertices,
                                   std::uint32_t influence, const PaintSettings &settings);

} // namespace host::skin
