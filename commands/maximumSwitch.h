// SPDX-License-Identifier: Apache-2.0
// The attribute maintainMaxInfluences of an edit's skin clusters. Maya's smoothing leaves it on
// (-omi 1), and while it is on, weights that an undo writes back lose what exceeds the limit.
#pragma once

#include "commands/preparedEdit.h"

// Notes in the edit where it is off.
void noteMaximumSwitches(preparedEdit &edit);
// Switches it off where that was noted. REQUIRES: the skin clusters exist.
void switchMaximumsBack(const preparedEdit &edit);
