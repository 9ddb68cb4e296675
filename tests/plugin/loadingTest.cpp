// SPDX-License-Identifier: Apache-2.0
//
// What of Maya's selection comes into the table.

#include "support/editorScene.h"

class loading : public EditorScene
{
};

TEST_F(loading, showsAWholeMeshUnderItsName)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {0.75, 0.25}, {0.5, 0.5}, {0.1235, 0.8765}});
    load("body");
    EXPECT_EQ(picture(), "          | hip   | knee\n"
                         "bodyShape |       |\n"
                         "vtx[0]    | 1.000 | 0.000\n"
                         "vtx[1]    | 0.750 | 0.250\n"
                         "vtx[2]    | 0.500 | 0.500\n"
                         "vtx[3]    | 0.124 | 0.876\n");
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(loading, showsTheVerticesThatArePickedInAscendingOrder)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {0.75, 0.25}, {0.5, 0.5}, {0.25, 0.75}});
    load("body.vtx[3] body.vtx[1] body.vtx[0]");
    EXPECT_EQ(picture(), "          | hip   | knee\n"
                         "bodyShape |       |\n"
                         "vtx[0]    | 1.000 | 0.000\n"
                         "vtx[1]    | 0.750 | 0.250\n"
                         "vtx[3]    | 0.250 | 0.750\n");
}

TEST_F(loading, givesJointsThatMeshesShareOneColumn)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {0.5, 0.5}, {0, 1}, {0, 1}});
    makeSkin("shirt", {"chest", "hip"}, {{1, 0}, {0.25, 0.75}, {0, 1}, {1, 0}});
    load("body.vtx[0:1] shirt.vtx[1]");
    EXPECT_EQ(picture(), "           | hip   | knee  | chest\n"
                         "bodyShape  |       |       |\n"
                         "vtx[0]     | 1.000 | 0.000 |\n"
                         "vtx[1]     | 0.500 | 0.500 |\n"
                         "shirtShape |       |       |\n"
                         "vtx[1]     | 0.750 |       | 0.250\n");
}

TEST_F(loading, givesAnInstanceOfAJointAColumnOfItsOwn)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    makeSkin("shirt", {"hip", "knee"}, {{0, 1}, {0, 1}, {0, 1}, {0, 1}});
    mel("group -em -n mirrored; parent -add hip mirrored;"
        "disconnectAttr hip.worldMatrix[0] shirtSkin.matrix[0];"
        "connectAttr hip.worldMatrix[1] shirtSkin.matrix[0]");
    load("body.vtx[0] shirt.vtx[0]");
    EXPECT_EQ(columnNames(), "hip knee hip");
    EXPECT_EQ(cellText(3, 0), "") << "of the joint's first path only";
    EXPECT_EQ(cellText(3, 2), "0.000");
}

TEST_F(loading, leavesOutWhatHasNoSkinOrNoVerticesPicked)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    mel("polyCube -n crate");
    for (const char *selection :
         {"crate", "crate.vtx[0]", "hip", "bodySkin", "body.f[0]", "body.e[0:1]"}) {
        load(selection);
        EXPECT_EQ(model_->rowCount(), 0) << selection;
    }
    load("hip crate body bodySkin");
    EXPECT_EQ(rowNames(), "bodyShape vtx[0] vtx[1] vtx[2] vtx[3]");
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(loading, givesAShapeThatIsSelectedTwiceTwoBlocks)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    load("body body.vtx[2]");
    EXPECT_EQ(rowNames(), "bodyShape vtx[0] vtx[1] vtx[2] vtx[3] bodyShape vtx[2]");
    EXPECT_EQ(columnNames(), "hip knee");
}

TEST_F(loading, replacesWhatWasLoaded)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    makeSkin("shirt", {"chest", "hip"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("body");
    load("shirt.vtx[1]");
    EXPECT_EQ(rowNames(), "shirtShape vtx[1]");
    EXPECT_EQ(columnNames(), "chest hip");
}

TEST_F(loading, ofNothingKeepsTheTableWhileItFollowsMaya)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("body");
    call("setAutoUpdate", true);
    mel("select -cl");
    load();
    EXPECT_EQ(model_->rowCount(), 5);
    EXPECT_EQ(columnNames(), "hip knee");
    call("setAutoUpdate", false);
    load();
    EXPECT_EQ(model_->rowCount(), 0);
    EXPECT_EQ(model_->columnCount(), 0);
}

TEST_F(loading, leavesTheSceneAlone)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {0.3336, 0.6664}, {0.5, 0.4}, {0, 0}});
    load("body");
    EXPECT_EQ(melNumbers("getAttr bodySkin.wl[1].w"), (std::vector<double>{0.3336, 0.6664}));
    EXPECT_EQ(melNumbers("getAttr bodySkin.wl[2].w"), (std::vector<double>{0.5, 0.4}));
    EXPECT_EQ(selectedInMaya(), "body");
}

// What is rounded on the way in is told apart from what was wrong before.
TEST_F(loading, marksAShapeWithAVertexThatIsNotNormalized)
{
    const struct {
        std::vector<double> weights;
        bool isMarked;
    } cases[] = {
        {{0.5, 0.5}, false},  {{0.5, 0.4995}, false}, {{0.5, 0.4985}, true},
        {{0.5, 0.502}, true}, {{0, 0}, true},         {{0.33333, 0.66667}, false},
    };
    for (const auto &c : cases) {
        mel("file -f -new");
        takeErrors();
        makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, c.weights, {1, 0}});
        mel("select -cl"); // the first event after a scene was opened goes unheard
        load("body");
        const QVariant color = model_->headerData(0, Qt::Vertical, Qt::BackgroundRole);
        EXPECT_EQ(color == QVariant(QColor(Qt::red)), c.isMarked)
            << c.weights[0] << ' ' << c.weights[1];
        load("body.vtx[0:1]");
        EXPECT_FALSE(model_->headerData(0, Qt::Vertical, Qt::BackgroundRole).isValid());
    }
}
