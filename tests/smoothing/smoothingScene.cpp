// SPDX-License-Identifier: Apache-2.0
#include "smoothing/smoothingScene.h"

SmoothingScene::SmoothingScene()
{
    // Maya's tools, and what can be picked, outlive the scene.
    mel("setToolTo selectSuperContext; selectType -ocm -alc 1");
}

SmoothingScene::~SmoothingScene()
{
    mel("setToolTo selectSuperContext");
}

void SmoothingScene::makeStrip(const std::string &mesh)
{
    std::vector<std::vector<double>> rows(8, {1, 0, 0});
    rows[1] = {0, 1, 0};
    makeSkin(mesh, {"hip", "knee", "ankle"}, rows);
}

std::string SmoothingScene::handsOfTheUser()
{
    return "selected " + selectedInMaya() + "; hilited " + hilitedInMaya() + "; tool " +
           melString("currentCtx") + "; components " + melString("selectType -q -ocm -alc") +
           "; vertices " + melString("selectType -q -ocm -vertex");
}
