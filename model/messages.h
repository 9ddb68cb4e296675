// SPDX-License-Identifier: Apache-2.0
// Every text that the editor shows in Maya's Script Editor, once: for the code and for its tests.
#pragma once

const char kNothingLoaded[] = "There is no weight list displayed in the window.";
const char kNoCellSelected[] = "There is no cell selected.";

// Loading.
const char kOutOfMemory[] = "Out of memory.";
const char kNothingSkinnedSelected[] = // ^1s: the first object that is selected
    "Nothing was loaded: ^1s is neither vertices of a skinned mesh nor an object whose first shape "
    "is one.";

// Rounding.
const char kRowWithoutColumns[] = "This row doesn't have more than 2 columns.";
const char kRowWithoutWeight[] = "There is something wrong accessing weight data.";
const char kNoCellToDeductFrom[] = "Could not find proper cell to deduct weight.";

// Typed values.
const char kValueOutOfRange[] = "The value entered has to be between 0.0 and 1.0.";

// The value slider, limiting influences, flooding.
const char kNothingToDrag[] = "There is no cell with valid data";
const char kJointIsLocked[] = "Can not set weight on this joint, since it is locked.";
const char kRowIsLocked[] =
    "This row is locked or has locked cell, and its number of influence can "
    "not be changed.";
const char kNoJointToFlood[] = "No joint has been selected for flood operation. Please select a "
                               "joint column first, then click on replace button.";
const char kManyJointsToFlood[] =
    "You can only do floor operation on one joint. Please select only "
    "one joint column";
const char kJointHasLocks[] = "This joint column has some locked cells. Please unlock those cells.";
const char kLockedVerticesLeft[] = "Locked vertices that kept their weights: ^1s."; // ^1s: how many

// Smoothing.
const char kNoWeightListYet[] = "There is no weight list created yet.";
const char kInvalidRow[] = "The selected cell row number is invalid.";
const char kSeveralSkinClusters[] =
    "The vertices are not on the same skinCluster. You can only smooth vertices on the same "
    "SkinCluster one at a time. Please only select vertices on the same shape.";
const char kNoVertexToSmooth[] = "There is no valid vertex cell selected for smoothing.";
const char kNoShapeToSmooth[] = "Can not find valid shape for smoothing.";
const char kCellsOfSeveralJoints[] = "Please select cells under same joint.";
const char kNoJointToSmooth[] = "No joint has been selected for Smooth Operation. Please select a "
                                "joint, or select cells under same joint";
const char kLockedJointToSmooth[] =
    "This joint has been locked. Please unlock the joint to do smooth.";
const char kSmoothingNotSetUp[] = "Smooth skin weights command is not properly setup.";

// Edits on their way into a skin cluster.
const char kDataNotSetUp[] = "Data was not set up properly before executing this command. Please "
                             "reload data into korvex.";
const char kNothingToUndo[] =
    "Nothing to undo, there is something wrong with getting the bottomRight Index!";
const char kNoRowNumber[] = "There is an error getting row number";
const char kNoEditableCell[] = "This is not a valid cell to edit.";
const char kNoVertexNumber[] = "There is something wrong accessing the vertex number.";
const char kNoJointIndex[] = "There is something wrong getting the joint index.";
const char kNoShapeIndex[] = "There is an error accessing shape index.";
const char kUnreadableVertexIndex[] = "There is some error with parsing the vertex index value.";
const char kNoModelIndex[] = "There is an error getting the mode index.";
const char kNoInfluence[] = "Could not find the influence.";
const char kNormalizationFixed[] =
    "The normalizeWeights attribute of ^1s cannot be set, so no weight was written."; // ^1s: node

// What is entered into the window's rows.
const char kInvalidMaximum[] = "Can not set maximum influence with this number.";
const char kMalformedPrecision[] =
    "The precision number is not set up correctly. Please use the 0.XXXX1 format.";
const char kNoFloodOperation[] = "Flood operation box value is out of range.";
const char kInvalidSmoothing[] =
    "Required Weight Difference or Smoothing Iterations value is invalid.";
const char kInvalidOpacity[] = "Opacity number should be between 0.0 and 1.0.";
const char kNoCellForValue[] =
    "There is no cell selected for value change. Please select cell to change its value.";
const char kNoValidCellForValue[] = "There is no cell with valid data to be set.";
const char kNoNumberForCells[] = "The value for the selected cells is not a number.";

// Locks.
const char kNothingToLock[] =
    "There is nothing to lock. Please select joint column or vertex row to lock.";
const char kNothingSelectedToUnlock[] =
    "There is nothing to unlock. Please select locked joint column or vertex row to unlock.";
const char kNothingToUnlock[] = "There is nothing to unlock.";
const char kJointAlreadyLocked[] = "This joint has already been locked.";
const char kRowAlreadyLocked[] = "This row has already been locked.";
const char kVertexAlreadyLocked[] = "This vertex has already been locked.";
const char kShapeRowForLocking[] =
    "A shape row is selected for locking. Please only select vertex row for locking.";
const char kShapeRowForUnlocking[] =
    "A shape row is selected for unlocking. Please select the vertex row to unlock.";
const char kShapeAmongLockedRows[] = "A shape was mistakenly added into locked vertices array.";
const char kCellNotLocked[] = "The selected cell is not in the locked list.";
const char kJointNotLocked[] = "The selected joint is not in the locked list.";
const char kVertexNotLocked[] = "The selected vertex is not in the locked list.";
const char kShapeNotInTable[] = "There is something wrong finding the shape in the weightList.";
const char kLocksNotStored[] = // ^1s: a skin cluster
    "The locks could not be stored on ^1s: it is locked or cannot be written to. They are lost "
    "when the table is loaded again.";

// Precision and snapshots.
const char kInvalidPrecision[] = "The precision value is not set up correctly.";
const char kNoWeightList[] = "There is no weight list data.";
const char kPrecisionWhileLocked[] =
    "There is locked joint or vertex, please unlock all and then set precision.";
const char kWeightsOutOfRange[] = // ^1s: how many
    "Vertices with a rounded weight outside 0 to 1: ^1s. Maya may write other weights there.";
const char kNothingToCache[] = "There is no weight to be cached.";
const char kCannotRestoreWeights[] = "There is a problem with restoring weight data.";
const char kArraysDiffer[] =
    "Weight list length and Joint list length doesn't match for this component.";

// Undoing and redoing in the window.
const char kNotLastChange[] = "Something else has been done since the last edit of the table, or "
                              "it is not on the undo queue. "
                              "Nothing was undone.";
const char kNotNextToRedo[] =
    "Something else has been done since the last edit of the table was undone. Nothing was redone.";

// The command without a place to act on.
const char kNoUserInterface[] = "korvexCmd needs Maya's user interface.";
const char kWindowNeverOpened[] =
    "The Korvex window has not been opened yet. Run korvexCmd without flags first.";
