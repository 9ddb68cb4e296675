// SPDX-License-Identifier: Apache-2.0
#include "riggingScene.h"

#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>

#include <QApplication>
#include <QItemSelectionModel>
#include <QTableView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <maya/MDagPath.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MGlobal.h>
#include <maya/MIntArray.h>
#include <maya/MSelectionList.h>
#include <maya/MString.h>

namespace rigging
{

namespace
{

// Ten by ten joints over the plane, each a root of its own.
std::string makeSceneScript()
{
    std::ostringstream script;
    script << "file -f -new; polyPlane -w 40 -h 25 -sx " << kColumns - 1 << " -sy " << kRows - 1
           << " -ch 0 -n sheet;\n";
    for (int i = 0; i < kInfluences; ++i)
        script << "select -cl; joint -p " << (i % 10) * 4 - 18 << " 0.1 " << (i / 10) * 2.5 - 11.25
               << " -n joint" << i << ";\n";
    script << "skinCluster -tsb -mi 8 -dr 4 -n sheetSkin";
    for (int i = 0; i < kInfluences; ++i)
        script << " joint" << i;
    script << " sheet;\n";
    return script.str();
}

// The mesh's shape, its skin cluster, and a component of all its vertices.
struct skinOfSheet {
    MDagPath shape;
    MObject skinCluster;
    MObject vertices;
};

skinOfSheet findSkin()
{
    skinOfSheet found;
    MSelectionList list;
    list.add("sheet");
    list.add("sheetSkin");
    list.getDagPath(0, found.shape);
    found.shape.extendToShape();
    list.getDependNode(1, found.skinCluster);
    MFnSingleIndexedComponent component;
    found.vertices = component.create(MFn::kMeshVertComponent);
    component.setCompleteData(kVertices);
    return found;
}

QTableView &viewOf(const QAbstractItemModel &model)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        QTableView *view = qobject_cast<QTableView *>(widget);
        if (view && view->model() == &model)
            return *view;
    }
    fail("the window has a table");
}

} // namespace

void fail(const std::string &what)
{
    std::cerr << "benchmark: failed: " << what.substr(0, 200) << std::endl;
    std::exit(1);
}

void mel(const std::string &script)
{
    if (!MGlobal::executeCommand(script.c_str()))
        fail(script);
}

const std::string &sceneFile()
{
    static const QTemporaryDir folder;
    static std::string path;
    if (path.empty()) {
        path = folder.filePath("sheet.ma").toStdString();
        mel(makeSceneScript());
        mel("file -rename \"" + path + "\"; file -f -save -type \"mayaAscii\"");
    }
    return path;
}

void openScene()
{
    const std::string path = sceneFile();
    mel("file -f -open \"" + path + "\"");
    mel("select -cl"); // the editor swallows the first event after a scene was opened
    mel("select sheet");
}

void scatterWeights()
{
    const skinOfSheet skin = findSkin();
    std::mt19937 random(1);
    MDoubleArray weights(unsigned(kVertices * kInfluences), 0.0);
    for (int vertex = 0; vertex < kVertices; ++vertex) {
        for (int i = 0; i < 8; ++i) {
            const int joint = int(random() % kInfluences);
            weights[unsigned(vertex * kInfluences + joint)] += 0.125;
        }
    }
    MIntArray joints;
    for (int i = 0; i < kInfluences; ++i)
        joints.append(i);
    MFnSkinCluster(skin.skinCluster).setWeights(skin.shape, skin.vertices, joints, weights);
}

double secondsToReadWeights()
{
    const skinOfSheet skin = findSkin();
    return quickestOf(3, [&] {
        MDoubleArray weights; // a new one, as whoever reads a mesh has
        unsigned int influences = 0;
        MFnSkinCluster(skin.skinCluster).getWeights(skin.shape, skin.vertices, weights, influences);
        benchmark::DoNotOptimize(weights[0]);
    });
}

QAbstractItemModel &editorModel()
{
    mel("loadPlugin -quiet \"" KORVEX_PLUGIN_DIR "/korvex.so\"; korvexCmd");
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (!widget->inherits("korvexWindow"))
            continue;
        for (QObject *child : widget->findChildren<QObject *>()) {
            if (child->inherits("weightTableModel"))
                return *qobject_cast<QAbstractItemModel *>(child);
        }
    }
    fail("korvexCmd opens a window");
}

void loadTable(QAbstractItemModel &model)
{
    call(model, "refreshSkinClusterData");
}

void selectCells(const QAbstractItemModel &model, const QItemSelection &cells)
{
    viewOf(model).selectionModel()->select(cells, QItemSelectionModel::ClearAndSelect);
}

} // namespace rigging
