// SPDX-License-Identifier: Apache-2.0
// Values between plugs and commands: what setAttr writes and getAttr reads, for every shape that an
// attribute can have.
#pragma once

#include <string_view>

#include "mel/command.h"
#include "mel/commands/attributeValues.h"
#include "scene/scene.h"

namespace host::mel
{

// Writes the values of a statement to a plug or a range of plugs. `type` is what stood behind
// -type, empty if nothing did. Forms, by what the plug is:
//
//   number                      ".tx" 1                       ".dpf[0:2]" 4 4 4
//   tuple, elements of one      ".t" -type "double3" 1 2 3    ".vt[0:1]" 0 0 0 1 1 1
//   other compound of numbers   the numbers of all leaves, in order
//   array of numbers as whole   ".wl[0:1].w" 2 0 .5 1 .5 1 3 1: per array a count, then index and
//                               value pairs; they are merged into what the array holds
//   anything else               one value of `type`; an opaque one may stand for a range
//
// An attribute that is only learned keeps the values as text. Checks no lock and no limit. Throws
// Error when the values do not fit. Weights of one vertex may stay in `pending`, if that is given.
void writeValues(Scene &scene, const PlugRange &range, std::string_view type, ValueTokens &tokens,
                 PendingWeights *pending = nullptr);

// The plugs of plain numbers below `plug`, in order: itself, a tuple's children, a compound's. Not
// those of elements.
std::vector<Plug> numberLeaves(const Plug &plug);

// What getAttr answers for a plug or a range: see the command. No value for data that was never
// set.
MelValue readValues(const PlugRange &range);

} // namespace host::mel
