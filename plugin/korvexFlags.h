// SPDX-License-Identifier: Apache-2.0
// The flags of korvexCmd, each the carrier of one kind of edit. None takes an argument.
#pragma once

struct korvexFlag {
    const char *shortName;
    const char *longName;
};

// In the order in which the command looks for them: the first that is set is carried out.
const korvexFlag kKorvexFlags[] = {
    {"-nm", "-numMax"},            // limit the influences per vertex
    {"-r", "-round"},              // round all weights
    {"-re", "-replace"},           // flood one joint column with a value
    {"-sd", "-setData"},           // typed values
    {"-ds", "-dragSlider"},        // the slider, over cells
    {"-dsc", "-dragSliderColumn"}, // the slider, over a joint column
    {"-sm", "-skinPaintSmooth"},   // smooth with the paint tool
    // Deliberate: shares its short name with the flag above. Scripts use the long names; Maya
    // keeps those whatever it makes of the short one.
    {"-sm", "-smoothSkinWeights"}, // smooth with the skin cluster's own edit
};
