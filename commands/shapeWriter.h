// SPDX-License-Identifier: Apache-2.0
// Writing to the skin clusters of an edit: what an edit's thousand writes to one shape share is set
// up once.
#pragma once

#include "commands/normalizationGuard.h"
#include "commands/preparedEdit.h"

#include <maya/MFnSkinCluster.h>
#include <maya/MIntArray.h>
#include <maya/MStatus.h>

#include <memory>
#include <vector>

// Whether writes are normalized where the skin cluster has that switched off.
enum class normalization {
    needed,
    wherePossible, // weights of all influences, which are stored as they are where it is not
    leftAlone
};

// Writes to one shape, normalized like that as long as it lives.
class shapeWriter
{
public:
    // REQUIRES: the skin cluster exists; so for all calls.
    shapeWriter(const editedShape &shape, normalization normalize);

    // False where the skin cluster cannot be made to normalize.
    bool isNormalizing() const { return !guard_ || guard_->isNormalizing(); }

    // Each call replaces `old`, if it is not null, by the weights of all influences before it.
    // Values stay as they are: Maya takes them without const, but only reads them. Arrays are
    // handed on without a copy, since those of a whole mesh are large.
    MStatus setInfluence(const MObject &component, int influence, double value, MDoubleArray *old);
    MStatus setInfluence(const MObject &component, int influence, MDoubleArray &values,
                         MDoubleArray *old);
    MStatus setAll(const MObject &component, MDoubleArray &values, MDoubleArray *old);

    // Replaces `weights` by those of all influences; empties it and gives false if they cannot be
    // read.
    bool read(const MObject &component, MDoubleArray &weights) const;

private:
    MFnSkinCluster skinCluster_;
    MDagPath path_;
    MIntArray allInfluences_;
    std::unique_ptr<normalizationGuard> guard_;
};

// The writers of all shapes of an edit.
class shapeWriters
{
public:
    // Shows a message if not all of it can be written: a shape or its skin cluster is gone, has
    // other influences or fewer vertices, or cannot be made to normalize where that is needed.
    // Edits that leave normalization alone are not normalized in any case.
    explicit shapeWriters(const preparedEdit &edit,
                          normalization normalize = normalization::needed);

    bool areReady() const { return areReady_; }
    // REQUIRES: areReady().
    shapeWriter &of(const weightWrite &write) { return *writers_[size_t(write.shape)]; }

private:
    void add(const editedShape &shape, normalization normalize);

    std::vector<std::unique_ptr<shapeWriter>> writers_;
    bool areReady_ = true;
};

// Fills the edit's oldWeights with the weights at all places of its writes, where something else
// than writeEach() is to write. False, with a message, if there is no place or one is gone.
bool keepDisplaced(preparedEdit &edit);

// The loop of most writers: `step` writes once, into `old` what that displaced.
typedef MStatus (*writeStep)(shapeWriter &writer, weightWrite &write, MDoubleArray &old);
MStatus writeEach(preparedEdit &edit, writeStep step);
