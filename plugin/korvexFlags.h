// SPDX-License-Identifier: Apache-2.0
// The flags of korvexCmd, each the carrier of one kind of edit. None takes an argument. A further
// kind of edit is a further row: the syntax, the command and its undo follow the table.
#pragma once

#include "commands/weightEdit.h"

struct korvexFlag {
    const char *shortName;
    const char *longName;
    editKind kind;
};

// In the order in which the command looks for them: the first that is set and can be prepared is
// carried out.
const korvexFlag kKorvexFlags[] = {
    // limit the influences per vertex
    {"-nm", "-numMax", {prepareMaxInfluences, writeMaxInfluences}},
    // round all weights
    {"-r", "-round", {prepareRounding, writeRounding}},
    // flood one joint column with a value
    {"-re", "-replace", {prepareFlood, writeFlood}},
    // typed values
    {"-sd", "-setData", {prepareCells, writeCells}},
    // the slider, over cells
    {"-ds", "-dragSlider", {prepareCells, writeCells}},
    // the slider, over a joint column
    {"-dsc", "-dragSliderColumn", {prepareColumn, writeColumn}},
    // smooth with the paint tool
    {"-sm", "-skinPaintSmooth", {preparePaintSmoothing, writePaintSmoothing}},
    // smooth with the skin cluster's own edit
    // Deliberate: shares its short name with the flag above. Scripts use the long names; Maya
    // keeps those whatever it makes of the short one.
    {"-sm", "-smoothSkinWeights", {prepareSmoothing, writeSmoothing}},
};
