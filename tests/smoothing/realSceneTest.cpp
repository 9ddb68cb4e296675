// SPDX-License-Identifier: Apache-2.0
//
// Scenes that people made with Maya. The folder comes from the environment variable KORVEX_SCENES.
#include "smoothing/smoothingScene.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QDir>

#include <maya/MDagPath.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnMesh.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

class realScenes : public SmoothingScene
{
protected:
    // A vector per vertex, of all skin clusters.
    using weightTable = std::vector<std::vector<double>>;

    static weightTable allWeights()
    {
        MSelectionList skins;
        weightTable table;
        if (melStrings("ls -type skinCluster").empty())
            return table;
        mel("select -r `ls -type skinCluster`");
        MGlobal::getActiveSelectionList(skins);
        mel("select -cl");
        for (unsigned int i = 0; i < skins.length(); ++i) {
            MObject skin;
            skins.getDependNode(i, skin);
            appendWeights(skin, table);
        }
        return table;
    }

    static void appendWeights(const MObject &skin, weightTable &table)
    {
        const MFnSkinCluster cluster(skin);
        MDagPath shape;
        if (!cluster.getPathAtIndex(0, shape) || !shape.hasFn(MFn::kMesh))
            return;
        MFnSingleIndexedComponent vertices;
        const MObject all = vertices.create(MFn::kMeshVertComponent);
        vertices.setCompleteData(MFnMesh(shape).numVertices());
        MDoubleArray weights;
        unsigned int influences = 1;
        cluster.getWeights(shape, all, weights, influences);
        for (unsigned int i = 0; i < weights.length(); ++i) {
            if (i % influences == 0)
                table.emplace_back();
            table.back().push_back(weights[i]);
        }
    }

    static double sum(const std::vector<double> &weights)
    {
        return std::accumulate(weights.begin(), weights.end(), 0.0);
    }

    static double distance(const std::vector<double> &a, const std::vector<double> &b)
    {
        double largest = 0.0;
        for (std::size_t i = 0; i < a.size(); ++i)
            largest = std::max(largest, std::abs(a[i] - b[i]));
        return largest;
    }
};

// All but weights below 0, which Maya does not take; files hold some, of less than 1e-11.
TEST_F(realScenes, areSmoothedAndComeBack)
{
    if (qEnvironmentVariableIsEmpty("KORVEX_SCENES"))
        GTEST_SKIP() << "KORVEX_SCENES names no folder of scenes";
    const QDir folder(qEnvironmentVariable("KORVEX_SCENES"));
    int changed = 0;
    for (const QString &name : folder.entryList({"*.ma"})) {
        SCOPED_TRACE(name.toStdString());
        mel("file -f -open \"" + folder.filePath(name).toStdString() + "\"");
        const weightTable before = allWeights();
        mel("select -cl");
        load("`ls -type mesh`");
        const int items = std::stoi(undoItems());
        smooth(0.1, 3);
        const weightTable smoothed = allWeights();
        while (std::stoi(undoItems()) > items)
            mel("undo");
        const weightTable undone = allWeights();
        ASSERT_EQ(undone.size(), before.size());
        for (std::size_t v = 0; v < before.size(); ++v) {
            changed += distance(before[v], smoothed[v]) > 0.01;
            ASSERT_NEAR(sum(smoothed[v]), sum(before[v]), 1e-12) << v;
            ASSERT_LT(distance(before[v], undone[v]), 1e-11) << v;
        }
    }
    EXPECT_GT(changed, 0);
}
