// SPDX-License-Identifier: Apache-2.0
// A loaded table to be smoothed, and what the user has in hand meanwhile.
#pragma once

#include "support/editScene.h"

class SmoothingScene : public EditScene
{
protected:
    // Maya's tools, and what can be picked, outlive the scene.
    SmoothingScene() { mel("setToolTo selectSuperContext; selectType -ocm -alc 1"); }
    ~SmoothingScene() override { mel("setToolTo selectSuperContext"); }

    // Two rows of four vertices, 0 to 3 and 4 to 7, of hip, knee and ankle. All is of the hip but
    // for vertex 1, a peak of the knee between 0, 2 and 5.
    static void makeStrip(const std::string &mesh)
    {
        std::vector<std::vector<double>> rows(8, {1, 0, 0});
        rows[1] = {0, 1, 0};
        makeSkin(mesh, {"hip", "knee", "ankle"}, rows);
    }

    void smooth(double tolerance, int rounds) { call("applySmoothSkinWeights", tolerance, rounds); }
    void paint(double opacity) { call("applySkinPaintSmooth", opacity); }

    // Selection, components that can be picked, tool, what can be picked: as one text.
    static std::string handsOfTheUser()
    {
        return "selected " + selectedInMaya() + "; hilited " + hilitedInMaya() + "; tool " +
               melString("currentCtx") + "; components " + melString("selectType -q -ocm -alc") +
               "; vertices " + melString("selectType -q -ocm -vertex");
    }
};
