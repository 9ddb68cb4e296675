// SPDX-License-Identifier: Apache-2.0
// Writes the weight list of a skin cluster.
#pragma once

#include "ma/valueWriter.h"
#include "scene/node.h"

namespace host::ma
{

// `setAttr -s N ".wl";` and the weights. Nothing for an empty store.
void writeWeights(StatementWriter &out, const FileStyle &style, const skin::WeightStore &weights);

} // namespace host::ma
