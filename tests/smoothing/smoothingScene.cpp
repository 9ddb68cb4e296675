// SPDX-License-Identifier: Apache-2.0
#include "smoothing/smoothingScene.h"

#include <maya/MString.h>

SmoothingScene::SmoothingScene()
{
    // Maya's tools, and what can be picked, outlive the scene.
    mel("setToolTo selectSuperContext; selectType -ocm -alc 1");
    shownCallback_ = MCommandMessage::addCommandOutputCallback(keepShown, this);
}

SmoothingScene::~SmoothingScene()
{
    MMessage::removeCallback(shownCallback_);
    mel("setToolTo selectSuperContext");
}

void SmoothingScene::makeStrip(const std::string &mesh)
{
    std::vector<std::vector<double>> rows(8, {1, 0, 0});
    rows[1] = {0, 1, 0};
    makeSkin(mesh, {"hip", "knee", "ankle"}, rows);
}

std::string SmoothingScene::all(const std::string &mesh, int count)
{
    std::string text;
    for (int vertex = 0; vertex < count; ++vertex)
        text += (vertex > 0 ? "; " : "") + weights(vertex, mesh);
    return text;
}

std::string SmoothingScene::takeShown()
{
    std::string taken;
    taken.swap(shown_);
    return taken;
}

std::string SmoothingScene::handsOfTheUser()
{
    return "selected " + selectedInMaya() + "; hilited " + hilitedInMaya() + "; tool " +
           melString("currentCtx") + "; components " + melString("selectType -q -ocm -alc") +
           "; vertices " + melString("selectType -q -ocm -vertex");
}

void SmoothingScene::keepShown(const MString &message, MCommandMessage::MessageType type,
                               void *self)
{
    std::string &shown = static_cast<SmoothingScene *>(self)->shown_;
    if (type == MCommandMessage::kHistory)
        shown += (shown.empty() ? "" : "\n") + std::string(message.asUTF8());
}
