// SPDX-License-Identifier: Apache-2.0
// From the data of an edit to the skin cluster, one writer per kind of edit, each in a source of
// its own.
//
// A writer empties the edit's oldWeights and fills them with what its writes displace. An edit
// without writes, or for a scene that has lost what it was prepared for, gets a message and
// kFailure, and nothing is written. A write that fails does not stop the others; the status is that
// of the last.
#pragma once

#include "commands/preparedEdit.h"
#include "model/cellIndex.h"

#include <maya/MStatus.h>

typedef MStatus (*editWriter)(preparedEdit &edit);

// An edit without writes is no failure here: no vertex has too many influences.
//
// Takes a vertex's smallest weights out one by one, each time letting the skin cluster normalize
// the others; among equal ones the leftmost goes. The first is chosen as the table shows them, the
// others to the last digit: weights too small to be shown count then, and go. A weight of a joint
// that is no influence stops everything that is left, with a message and kFailure; what was written
// stays, and stays in oldWeights.
MStatus writeMaxInfluences(preparedEdit &edit);
// The same, asking before each weight that goes: a cell of the table that is refused is passed
// over.
typedef bool (*cellQuestion)(const cellIndex &cell);
MStatus writeMaxInfluencesAsking(preparedEdit &edit, cellQuestion mayChange);
// Of all influences, with normalizeWeights as it is.
MStatus writeRounding(preparedEdit &edit);
MStatus writeFlood(preparedEdit &edit);
// Cells of one joint column are written together (cellGroups.h). Joints of locked cells are held.
MStatus writeCells(preparedEdit &edit);
MStatus writeColumn(preparedEdit &edit);

// Have Maya's own tools smooth. What that displaces is read before, and forgotten if they fail. The
// user's selection, and for the paint tool the user's tool and what can be picked, are afterwards
// what they were, also where something failed.
//
// By the skin cluster's own edit, which leaves maintainMaxInfluences on until it is undone. Without
// a script there is a message and kFailure.
MStatus writeSmoothing(preparedEdit &edit);
// Joints of locked columns are held, and thus end free (influenceHold.h).
MStatus writePaintSmoothing(preparedEdit &edit);
