// SPDX-License-Identifier: Apache-2.0
// A scene of rigging size, the editor on it, and what benchmarks of it measure with.
#pragma once

#include <algorithm>
#include <ctime>
#include <limits>
#include <string>

#include <QAbstractItemModel>

class QItemSelection;

namespace rigging
{

constexpr int kColumns = 400; // vertices along the two sides of the plane
constexpr int kRows = 250;
constexpr int kVertices = kColumns * kRows;
constexpr int kInfluences = 100;

// The path of a scene file with one skinned mesh "sheet", eight of its hundred joints at each
// vertex. Made once per run, and removed with it. The scene that is open is replaced.
const std::string &sceneFile();

// Opens it and selects the mesh.
void openScene();

// Gives each vertex of the mesh weights of up to eight joints anywhere, so that none of its
// neighbours has the same: the worst that smoothing meets.
void scatterWeights();

// One dense reading of all weights from the skin cluster: what an operation on the whole mesh is
// measured against. Into a new array, as an operation reads them; the quickest of three.
double secondsToReadWeights();

// Loads the plug-in, opens its window and gives its model.
QAbstractItemModel &editorModel();
// Loads what is selected into the table.
void loadTable(QAbstractItemModel &model);
// Selects these cells in the window, and no others.
void selectCells(const QAbstractItemModel &model, const QItemSelection &cells);

// Runs MEL; ends the program if it fails: no figure would mean anything.
void mel(const std::string &script);
[[noreturn]] void fail(const std::string &what);

// Calls a slot of the model with what Q_ARG makes.
template <typename... Arguments>
void call(QAbstractItemModel &model, const char *slot, Arguments... arguments)
{
    if (!QMetaObject::invokeMethod(&model, slot, arguments...))
        fail(slot);
}

// Seconds of the processor, so that what else the machine does counts little.
template <typename Function>
double secondsOf(Function function)
{
    const std::clock_t start = std::clock();
    function();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

// The quickest of several.
template <typename Function>
double quickestOf(int times, Function function)
{
    double quickest = std::numeric_limits<double>::max();
    for (int i = 0; i < times; ++i)
        quickest = std::min(quickest, secondsOf(function));
    return quickest;
}

} // namespace rigging
