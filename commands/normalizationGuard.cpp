// SPDX-License-Identifier: Apache-2.0
#include "commands/normalizationGuard.h"

namespace
{

const int kNone = 0;
const int kInteractive = 1;

} // namespace

normalizationGuard::normalizationGuard(const MFnDependencyNode &skinCluster)
    : plug_(skinCluster.findPlug("normalizeWeights", true))
{
    int mode = kNone;
    if (!plug_.getValue(mode) || mode != kNone)
        return;
    // Asked first, since Maya has words of its own for an attempt.
    isSwitched_ = plug_.isFreeToChange() == MPlug::kFreeToChange && plug_.setInt(kInteractive);
    isNormalizing_ = isSwitched_;
}

normalizationGuard::~normalizationGuard()
{
    if (isSwitched_)
        plug_.setInt(kNone);
}
