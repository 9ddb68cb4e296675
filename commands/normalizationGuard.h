// SPDX-License-Identifier: Apache-2.0
// Makes writes to a skin cluster normalize while it lives.
//
// A skin cluster whose normalizeWeights is 0 stores what it is given, whatever setWeights is asked
// for. It gets 1 (interactive) for the moment, and its 0 back; 1 and 2 are never touched.
#pragma once

#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>

class normalizationGuard
{
public:
    explicit normalizationGuard(const MFnDependencyNode &skinCluster);
    ~normalizationGuard();

    // False where the attribute is 0 and takes no other value: it is locked, or driven.
    bool isNormalizing() const { return isNormalizing_; }

private:
    normalizationGuard(const normalizationGuard &);            // not copied
    normalizationGuard &operator=(const normalizationGuard &); // not assigned

    MPlug plug_;
    bool isSwitched_ = false;
    bool isNormalizing_ = true;
};
