// SPDX-License-Identifier: Apache-2.0
// A grid of 5 x 5 vertices, numbered row by row, bound by "skin" to joint1, joint2 and joint3.
// Every vertex belongs to joint1 alone. The vertex in the middle is 12, its neighbours 7, 11, 13
// and 17.
#pragma once

#include <cstdio>

#include "support/mayaSession.h"

class clothScene : public MayaSession
{
protected:
    clothScene()
    {
        mel("polyPlane -sx 4 -sy 4 -ch 0 -n cloth; select -cl;"
            "joint -p 0 0 0; joint -p 1 0 0; joint -p 2 0 0; select -cl;"
            "skinCluster -tsb -mi 2 -n skin joint1 joint2 joint3 cloth;");
        set("*", "1 0 0");
        // Maya's tools outlive the scene.
        mel("ArtPaintSkinWeightsTool; artAttrSkinPaintCtx -e -sao absolute -opacity 1 -value 0 "
            "-clamp none artAttrSkinPaintCtx; setToolTo selectSuperContext");
    }

    // Gives vertices ("12", "3:7", "*") the weights "joint1 joint2 joint3".
    static void set(const std::string &vertices, const std::string &weights)
    {
        double weight[3] = {};
        EXPECT_EQ(std::sscanf(weights.c_str(), "%lf %lf %lf", weight, weight + 1, weight + 2), 3);
        std::string values;
        for (int i = 0; i < 3; ++i)
            values += " -tv joint" + std::to_string(i + 1) + " " + std::to_string(weight[i]);
        mel("skinPercent" + values + " skin cloth.vtx[" + vertices + "]");
    }

    // The weights of a vertex in the same form.
    static std::string weights(int vertex)
    {
        return melWeights("cloth.vtx[" + std::to_string(vertex) + "]", "skin");
    }
};
