// SPDX-License-Identifier: Apache-2.0
//
// What setWeights of one or several influences makes of a vertex.

#include <maya/MDagPath.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MIntArray.h>
#include <maya/MSelectionList.h>

#include "support/editScene.h"

class workedExamples : public EditScene
{
protected:
    // Sets the weights of vertex 0, whose joints "jN" are locked where `held` says "1".
    static void set(const std::vector<int> &influences, const std::vector<double> &weights)
    {
        MSelectionList list;
        MDagPath shape;
        MObject skin;
        list.add("bodyShape");
        list.add("bodySkin");
        list.getDagPath(0, shape);
        list.getDependNode(1, skin);
        MFnSingleIndexedComponent component;
        const MObject vertex = component.create(MFn::kMeshVertComponent);
        component.addElement(0);
        if (influences.size() == 1) {
            EXPECT_TRUE(MFnSkinCluster(skin).setWeights(
                shape, vertex, static_cast<unsigned>(influences[0]), weights[0]));
            return;
        }
        MIntArray indices(influences.data(), static_cast<unsigned>(influences.size()));
        MDoubleArray values(weights.data(), static_cast<unsigned>(weights.size()));
        EXPECT_TRUE(MFnSkinCluster(skin).setWeights(shape, vertex, indices, values));
    }
};

TEST_F(workedExamples, followTheRuleOfInteractiveNormalization)
{
    const struct {
        std::vector<double> before;
        const char *held; // a joint each
        std::vector<int> influences;
        std::vector<double> weights;
        const char *after;
        bool warns;
        int mode = 1;
    } cases[] = {
        {{.5, .3, .2, 0}, "0000", {0}, {.8}, "0.8 0.12 0.08 0", false},
        {{.5, .3, .2, 0}, "0000", {0}, {.2}, "0.2 0.48 0.32 0", false},
        {{.5, .3, .2, 0}, "0000", {0}, {0}, "0 0.6 0.4 0", false},
        {{.5, .3, .2, 0}, "0100", {0}, {.2}, "0.2 0.3 0.5 0", false},
        {{.5, .3, .2, 0}, "0100", {0}, {.9}, "0.7 0.3 0 0", true},
        {{.5, .3, .2}, "011", {0}, {.2}, "0.5 0.3 0.2", true},
        {{.5, .3, .2}, "011", {0}, {.8}, "0.5 0.3 0.2", true},
        {{.5, .3, .2}, "100", {0}, {.8}, "0.8 0.12 0.08", false},
        {{1}, "0", {0}, {.4}, "1", true},
        {{.4, .3, .2, .1}, "0000", {0, 2}, {.2, .6}, "0.2 0.15 0.6 0.05", false},
        {{.4, .3, .2, .1}, "0000", {0, 2}, {.2, .8}, "0.2 0 0.8 0", false},
        {{.4, .3, .2, .1}, "0000", {0, 2}, {.7, .6}, "0.7 0 0.3 0", true},
        {{.4, .3, .2, .1},
         "0000",
         {0, 1, 2, 3},
         {.5, .2, .1, .1},
         "0.555556 0.222222 0.111111 0.111111",
         true},
        {{.5, .25, .2}, "000", {0}, {.4}, "0.4 0.333333 0.266667", false},
        {{.5, .3, .2}, "000", {0}, {1.5}, "1 0 0", true},
        {{.5, .3, .2}, "000", {0}, {-.5}, "0 0.6 0.4", true},
        {{.5, .3, .2}, "000", {0}, {.2}, "0.2 0.3 0.2", false, 0},
        {{.5, .3, .2}, "000", {0}, {.2}, "0.2 0.3 0.2", false, 2},
        {{.4, .3, .2, .1}, "0000", {3}, {0}, "0.444444 0.333333 0.222222 0", false},
    };
    int number = 0;
    for (const auto &c : cases) {
        mel("file -f -new");
        std::vector<std::string> joints;
        for (size_t i = 0; i < c.before.size(); ++i)
            joints.push_back("j" + std::to_string(i));
        makeSkin("body", joints, std::vector<std::vector<double>>(4, c.before));
        mel("setAttr bodySkin.nw " + std::to_string(c.mode));
        for (size_t i = 0; i < joints.size(); ++i)
            mel("setAttr " + joints[i] + ".liw " + c.held[i]);
        takeWarnings();
        set(c.influences, c.weights);
        ++number;
        EXPECT_EQ(weights(0), c.after) << "case " << number;
        EXPECT_EQ(!takeWarnings().empty(), c.warns) << "case " << number;
    }
}
