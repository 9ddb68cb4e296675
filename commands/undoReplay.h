// SPDX-License-Identifier: Apache-2.0
// Taking an edit back: what its writes displaced is written again.
#pragma once

#include "commands/preparedEdit.h"

#include <maya/MStatus.h>

// Writes the edit's oldWeights back, all influences of each place, normalized unless the edit
// leaves that alone or the skin cluster cannot be made to. No joint is held: the old weights name
// every influence. Fails if there is nothing to write back, and with a message if the scene has
// lost the places. The status is that of the last write.
//
// Deliberate: first to last, never in reverse. Where two writes of an edit met at one vertex (two
// cells of a row typed into at once), the vertex ends with the weights between them, the first
// write still applied. Pinned by the test undoReplay.endsBetweenTwoWritesToOneVertex.
MStatus replayDisplaced(preparedEdit &edit);
