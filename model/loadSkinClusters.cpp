// SPDX-License-Identifier: Apache-2.0
// Loading: from Maya's selection to the rows of the table. Reads the scene, never writes to it.
#include "model/weightTableModel.h"

#include "model/mayaText.h"
#include "model/messages.h"
#include "model/precisionRounding.h"
#include "model/requireMemory.h"
#include "model/selectedShapes.h"
#include "model/shapeReader.h"
#include "model/skinClustersOfShape.h"
#include "plugin/processState.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>

namespace
{

MDagPathArray influencesOf(const MObject &skinCluster)
{
    MDagPathArray influences;
    MFnSkinCluster(skinCluster).influenceObjects(influences);
    return influences;
}

void gatherShape(const selectedShape &shape, weightList &weights)
{
    const MObjectArray skinClusters = skinClustersOfShape(shape.path);
    for (unsigned int i = 0; i < skinClusters.length(); ++i) {
        weights.skinClusters.append(skinClusters[i]);
        weights.skinClusterHandles.append(MObjectHandle(skinClusters[i]));
        weights.shapePaths.append(shape.path);
        weights.shapeComponents.append(shape.component);
        const MDagPathArray influences = influencesOf(skinClusters[i]);
        for (unsigned int influence = 0; influence < influences.length(); ++influence)
            weights.addJointColumn(influences[influence]);
    }
}

// With what the view and Maya's own allocations keep for each row, roughly.
std::size_t memoryOfRows(int rows, int joints)
{
    const std::size_t besideCells = 200;
    return static_cast<std::size_t>(rows) *
           (static_cast<std::size_t>(joints + 1) * sizeof(double) + besideCells);
}

// As Maya lists it: "body", "body.f[0]".
MString firstName(const MSelectionList &selection)
{
    MStringArray names;
    selection.getSelectionStrings(0, names);
    return names.length() > 0 ? names[0] : MString();
}

} // namespace

void weightTableModel::refreshSkinClusterData()
{
    if (!loadSelection())
        return;
    MSelectionList selection;
    MGlobal::getActiveSelectionList(selection);
    if (weights_.shapeCount() == 0 && !selection.isEmpty())
        MGlobal::displayWarning(messageWith(kNothingSkinnedSelected, firstName(selection)));
}

bool weightTableModel::loadSelection()
{
    bool hasMemory = true;
    beginResetModel();
    weightsBeforeLoad_ = weights_;
    MSelectionList selection;
    MGlobal::getActiveSelectionList(selection);
    wholeListRounding rounding(settings_.precision);

    try {
        if (autoUpdate && selection.isEmpty())
            roundLoadedRows(rounding);
        else
            readSelection(selection, rounding);
        weights_.readJointHeaders();
    } catch (const std::bad_alloc &) {
        weights_ = weightList();
        forgetSnapshots();
        MGlobal::displayError(kOutOfMemory);
        hasMemory = false;
    }
    endResetModel();

    // Once each, however many rows are like that.
    if (rounding.metRowWithoutColumns())
        MGlobal::displayError(kRowWithoutColumns);
    if (rounding.metRowWithoutWeight())
        MGlobal::displayError(kRowWithoutWeight);
    return hasMemory;
}

void weightTableModel::readSelection(const MSelectionList &selection, wholeListRounding &rounding)
{
    weights_ = weightList();
    weights_.notes.precision = settings_.precision;
    forgetSnapshots();
    const QVector<selectedShape> shapes = selectedShapes(selection);
    for (int i = 0; i < shapes.size(); ++i)
        gatherShape(shapes.at(i), weights_);
    for (int shape = 0; shape < weights_.shapeCount(); ++shape)
        appendShapeBlock(shape, rounding);
}

// Appends a shape row and the shape's vertex rows. All weights are read with one call; whether a
// vertex was normalized is told before its row is rounded.
void weightTableModel::appendShapeBlock(int shape, wholeListRounding &rounding)
{
    const MDagPath &path = weights_.shapePaths[shape];
    const int shapeRowIndex = static_cast<int>(weights_.rows.size());
    weights_.shapeRows.append(shapeRowIndex);
    weights_.rowNames.appendShape(textOf(MFnDependencyNode(path.node()).name()));
    weights_.rows.append(shapeRow(weights_.jointCount()));

    shapeReader reader(weights_, shape);
    const double tolerance = normalizationTolerance(settings_.precision);
    QSet<int> unnormalizedRows;
    requireMemory(memoryOfRows(reader.vertexCount(), weights_.jointCount()));
    weights_.rows.reserve(shapeRowIndex + 1 + reader.vertexCount());
    weights_.rowNames.reserve(shapeRowIndex + 1 + reader.vertexCount());
    for (int k = 0; k < reader.vertexCount(); ++k) {
        double sum = 0.0;
        weightRow row = reader.row(k, &sum);
        if (!isNormalized(sum, tolerance))
            unnormalizedRows.insert(shapeRowIndex + 1 + k);
        rounding.apply(row);
        if (rounding.metRowWithoutWeight() && weights_.notes.firstRowWithoutWeight < 0)
            weights_.notes.firstRowWithoutWeight = shapeRowIndex + 1 + k;
        weights_.rows.append(row);
        weights_.rowNames.appendVertex(reader.vertex(k));
    }
    if (!unnormalizedRows.isEmpty())
        weights_.rows[shapeRowIndex][0] = kUnnormalizedShapeTag;
    weights_.notes.unnormalizedRows.append(unnormalizedRows);
}

// Rows that do not change go on sharing their memory with the snapshot.
void weightTableModel::roundLoadedRows(wholeListRounding &rounding)
{
    for (int r = 0; r < weights_.rows.size(); ++r) {
        weightRow row = weights_.rows.at(r);
        rounding.apply(row);
        if (row != weights_.rows.at(r))
            weights_.rows[r] = row;
    }
}
