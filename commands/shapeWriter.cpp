// SPDX-License-Identifier: Apache-2.0
#include "commands/shapeWriter.h"

#include "model/mayaText.h"
#include "model/messages.h"
#include "model/vertexComponents.h"

#include <maya/MGlobal.h>

#include <new>

namespace
{

// Whether the scene still has all that the edit was prepared for.
bool canTake(const editedShape &shape)
{
    if (!shape.skinCluster.isValid() || !shape.path.isValid())
        return false;
    MDoubleArray weights;
    unsigned int influenceCount = 0;
    const MStatus status =
        MFnSkinCluster(shape.skinCluster.object())
            .getWeights(shape.path, oneVertex(shape.highestVertex), weights, influenceCount);
    return status && influenceCount == shape.influenceCount;
}

// Of a call that was refused for want of memory nothing is known: the whole edit is taken back.
MStatus enoughMemory(MStatus status)
{
    if (status == MStatus::kInsufficientMemory)
        throw std::bad_alloc();
    return status;
}

} // namespace

shapeWriter::shapeWriter(const editedShape &shape, normalization normalize)
    : skinCluster_(shape.skinCluster.object()), path_(shape.path)
{
    for (unsigned int i = 0; i < shape.influenceCount; ++i)
        allInfluences_.append(static_cast<int>(i));
    if (normalize != normalization::leftAlone)
        guard_.reset(new normalizationGuard(skinCluster_));
}

MStatus shapeWriter::setInfluence(const MObject &component, int influence, double value,
                                  MDoubleArray *old)
{
    return enoughMemory(skinCluster_.setWeights(
        path_, component, static_cast<unsigned int>(influence), value, true, old));
}

MStatus shapeWriter::setInfluence(const MObject &component, int influence, MDoubleArray &values,
                                  MDoubleArray *old)
{
    // What this setWeights gives as old weights, of these influences or of all, Maya leaves open.
    if (old)
        read(component, *old);
    MIntArray influences(1, influence);
    return enoughMemory(skinCluster_.setWeights(path_, component, influences, values, true));
}

MStatus shapeWriter::setAll(const MObject &component, MDoubleArray &values, MDoubleArray *old)
{
    return enoughMemory(
        skinCluster_.setWeights(path_, component, allInfluences_, values, true, old));
}

bool shapeWriter::read(const MObject &component, MDoubleArray &weights) const
{
    unsigned int influenceCount = 0;
    if (enoughMemory(skinCluster_.getWeights(path_, component, weights, influenceCount)))
        return true;
    weights.clear();
    return false;
}

shapeWriters::shapeWriters(const preparedEdit &edit, normalization normalize)
{
    if (edit.leavesNormalizationAlone)
        normalize = normalization::leftAlone;
    for (int i = 0; areReady_ && i < edit.shapes.size(); ++i)
        add(edit.shapes.at(i), normalize);
}

void shapeWriters::add(const editedShape &shape, normalization normalize)
{
    if (!canTake(shape)) {
        areReady_ = false;
        MGlobal::displayInfo(kDataNotSetUp);
        return;
    }
    writers_.push_back(std::unique_ptr<shapeWriter>(new shapeWriter(shape, normalize)));
    if (normalize == normalization::needed && !writers_.back()->isNormalizing()) {
        areReady_ = false;
        MGlobal::displayError(
            messageWith(kNormalizationFixed, MFnDependencyNode(shape.skinCluster.object()).name()));
    }
}

bool keepDisplaced(preparedEdit &edit)
{
    edit.oldWeights.clear();
    if (edit.writes.isEmpty()) {
        MGlobal::displayInfo(kDataNotSetUp);
        return false;
    }
    shapeWriters readers(edit, normalization::leftAlone);
    edit.oldWeights.reserve(edit.writes.size());
    for (int i = 0; readers.areReady() && i < edit.writes.size(); ++i) {
        edit.oldWeights.append(MDoubleArray());
        readers.of(edit.writes.at(i)).read(edit.writes.at(i).component, edit.oldWeights.last());
    }
    return readers.areReady();
}

MStatus writeEach(preparedEdit &edit, writeStep step)
{
    edit.oldWeights.clear();
    if (edit.writes.isEmpty()) {
        MGlobal::displayInfo(kDataNotSetUp);
        return MStatus::kFailure;
    }
    shapeWriters writers(edit);
    if (!writers.areReady())
        return MStatus::kFailure;
    MStatus status;
    edit.oldWeights.reserve(edit.writes.size());
    for (int i = 0; i < edit.writes.size(); ++i) {
        edit.oldWeights.append(MDoubleArray());
        weightWrite &write = edit.writes[i];
        status = step(writers.of(write), write, edit.oldWeights.last());
    }
    return status;
}
