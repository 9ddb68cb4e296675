// SPDX-License-Identifier: Apache-2.0
// A scene as text, complete enough that two scenes with the same text are the same scene.
#pragma once

#include <string>

#include "scene/session.h"

// A line per node, value, state and connection, in the scene's own order. What is stored differs
// from what is merely the default, and a weight of zero from none.
std::string sceneText(const host::Scene &scene);

// The scene with selection and hilite list.
std::string sessionText(host::Session &session);
