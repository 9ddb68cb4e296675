// SPDX-License-Identifier: Apache-2.0
// A scene in which every kind of thing that the scene layer holds occurs once.
#pragma once

#include <string>

#include "scene/session.h"

// Fills a new session's scene, unrecorded:
//
//     body (transform)        bodyShape: a mesh from the polyCube bodyCube, 8 vertices
//     left, right (groups)    each an instance of hand (transform) with handShape (mesh)
//     hip > knee > shin, foot joints, knee.inverseScale fed by hip.scale, foot locked
//     skin                    a skinCluster: matrix[0], [2] fed by hip and knee; weights of 0, 3, 4
//     note, colour, gain      dynamic on hip: string "left", a float3 array, a double feeding
//     body.sx rig:control             in a namespace, its tx locked
void buildSampleScene(host::Session &session);

// The plug that "node.path[3].child" means.
host::Plug plugNamed(host::Scene &scene, const std::string &name);
