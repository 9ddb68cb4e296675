// SPDX-License-Identifier: Apache-2.0
// A scene of rigging size, and the editor on it.
#pragma once

#include <string>

#include <maya/MDagPath.h>
#include <maya/MObject.h>

class QAbstractItemModel;

namespace rigging
{

constexpr int kColumns = 400; // vertices along the two sides of the plane
constexpr int kRows = 250;
constexpr int kVertices = kColumns * kRows;
constexpr int kInfluences = 100;

// The path of a scene file with one skinned mesh "sheet", five of its hundred joints at each
// vertex. Made once per run, and removed with it. The scene that is open is replaced.
const std::string &sceneFile();

// Opens it and selects the mesh.
void openScene();

// The mesh's shape, its skin cluster, and a component of all its vertices.
struct Skin {
    MDagPath shape;
    MObject skinCluster;
    MObject vertices;
};
Skin skin();

// Loads the plug-in, opens its window and gives its model.
QAbstractItemModel &editorModel();
// Loads what is selected into the table.
void loadTable(QAbstractItemModel &model);

// Runs MEL; ends the program if it fails: no figure would mean anything.
void mel(const std::string &script);

} // namespace rigging
