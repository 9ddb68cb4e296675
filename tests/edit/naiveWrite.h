// SPDX-License-Identifier: Apache-2.0
// The rule by which a skin cluster takes weights, and the editor's way of using it, written down a
// second time in the plainest words: what random edits are compared with.
#pragma once

#include <map>
#include <vector>

struct naiveVertex {
    std::vector<double> weights;
    // Set where the rule has to make up weights out of nothing: only the sum can be told then.
    bool isUnknown = false;
};

// Gives the influences of `given` their values; `held` are locked. Mode as normalizeWeights.
naiveVertex naiveWrite(const std::vector<double> &weights, const std::map<int, double> &given,
                       const std::vector<bool> &held, int mode);
