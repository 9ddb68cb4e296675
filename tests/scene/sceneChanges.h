// SPDX-License-Identifier: Apache-2.0
// One change of each kind that a scene can be told to make, on the sample scene.
#pragma once

#include <functional>
#include <vector>

#include "scene/scene.h"

struct SceneChange {
    const char *what;
    std::function<void(host::Scene &)> make;
};

const std::vector<SceneChange> &sceneChanges();
