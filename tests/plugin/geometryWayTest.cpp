// SPDX-License-Identifier: Apache-2.0
//
// Skin clusters without a deformer set, as Maya binds since component tags have replaced the sets:
// found along the geometry of the shape, whatever stands in between.

#include <fstream>
#include <sstream>

#include <QTemporaryDir>

#include "model/messages.h"
#include "support/editorScene.h"

namespace
{

// Two skin clusters of joints of their own, and a mesh without history, "other".
const char kScene[] = R"(//Maya ASCII 2022 scene
requires maya "2022";
createNode joint -n "hip";
createNode joint -n "knee";
createNode joint -n "jaw";
createNode transform -n "body";
createNode mesh -n "bodyShape" -p "body";
createNode mesh -n "bodyShapeOrig" -p "body";
	setAttr ".io" yes;
	setAttr -s 3 ".vt[0:2]" 0 0 0 1 0 0 0 1 0;
	setAttr -s 3 ".ed[0:2]" 0 1 0 1 2 0 2 0 0;
	setAttr ".fc[0]" -type "polyFaces" f 3 0 1 2;
createNode transform -n "other";
createNode mesh -n "otherShape" -p "other";
	setAttr -s 3 ".vt[0:2]" 0 0 0 1 0 0 0 1 0;
createNode skinCluster -n "skin";
	setAttr ".wl[0:2].w" 1 0 1 2 0 0.25 1 0.75 1 1 1;
createNode skinCluster -n "face";
	setAttr ".wl[0:2].w" 1 0 1 1 0 1 1 0 1;
createNode deltaMush -n "mush";
createNode blendShape -n "blend";
createNode wrap -n "wrap";
createNode groupParts -n "parts";
createNode polyTweakUV -n "uvs";
createNode studioPush -n "push";
createNode studioPush -n "pull";
connectAttr "hip.wm" "skin.ma[0]";
connectAttr "knee.wm" "skin.ma[1]";
connectAttr "jaw.wm" "face.ma[0]";
connectAttr "bodyShapeOrig.w" "skin.ip[0].ig";
)";

} // namespace

class geometryWays : public EditorScene
{
protected:
    // `connections`: "a.og[0] b.ip[0].ig, b.og[0] c.i".
    void open(const std::string &connections)
    {
        std::string text = kScene;
        std::istringstream ways(connections);
        for (std::string source, destination; ways >> source >> destination;) {
            destination.erase(destination.find_last_not_of(',') + 1);
            text += "connectAttr \"" + source + "\" \"" + destination + "\";\n";
        }
        const std::string path = folder_.filePath("scene.ma").toStdString();
        std::ofstream(path) << text << "// End of scene.ma\n";
        mel("file -f -open \"" + path + "\"; select -cl");
    }

private:
    QTemporaryDir folder_;
};

TEST_F(geometryWays, leadToEachSkinClusterOnce)
{
    const struct {
        const char *connections;
        const char *columns; // of the skin clusters that are found, the nearest first
    } cases[] = {
        {"skin.og[0] bodyShape.i", "hip knee"},
        {"skin.og[0] mush.ip[0].ig, mush.og[0] bodyShape.i", "hip knee"},
        {"skin.og[0] blend.ip[3].ig, face.og[0] blend.ip[0].ig, blend.og[3] bodyShape.i",
         "hip knee"},
        {"skin.og[0] parts.ig, parts.og bodyShape.i", "hip knee"},
        {"skin.og[0] uvs.ip, uvs.out bodyShape.i", "hip knee"},
        {"skin.outputGeometry[0] uvs.inputPolymesh, uvs.output bodyShape.inMesh", "hip knee"},
        {"skin.og[0] push.ip[2].ig, face.og[0] push.ip[0].ig, push.og[2] bodyShape.i", "hip knee"},
        {"skin.og[0] push.input[2].inputGeometry, push.outputGeometry[2] bodyShape.i", "hip knee"},
        {"skin.og[0] face.ip[0].ig, face.og[0] mush.ip[0].ig, mush.og[0] bodyShape.i",
         "jaw hip knee"},
        // Other ways into deformers and modelling nodes, and other meshes, lead to others' skins.
        {"face.og[0] blend.it[0].itg[0].iti[6000].igt, blend.og[0] bodyShape.i", ""},
        {"face.og[0] wrap.dp[0], wrap.og[0] bodyShape.i", ""},
        {"face.og[0] otherShape.i, otherShape.o bodyShape.i", ""},
        {"hip.wm uvs.mp, uvs.out bodyShape.i", ""},
        {"push.og[0] pull.ip[0].ig, pull.og[0] push.ip[0].ig, push.og[1] bodyShape.i", ""},
        {"push.og[0] pull.ip[0].ig, pull.og[0] push.ip[0].ig, pull.og[0] bodyShape.i", ""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.connections);
        open(c.connections);
        takeWarnings();
        load("body");
        EXPECT_EQ(columnNames(), c.columns);
        EXPECT_EQ(takeWarnings().empty(), model_->rowCount() > 0);
    }
}

TEST_F(geometryWays, comeBehindTheDeformerSets)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {0, 1}, {0.5, 0.5}});
    mel("joint -n jaw; createNode skinCluster -n face; createNode deltaMush -n mush;"
        "connectAttr jaw.worldMatrix[0] face.matrix[0];"
        "setAttr face.wl[0].w[0] 1; setAttr face.wl[3].w[0] 1;"
        "connectAttr bodySkin.og[0] face.ip[0].ig; connectAttr face.og[0] mush.ip[0].ig;"
        "connectAttr -f mush.og[0] bodyShape.inMesh; select -cl");
    load("body.vtx[3]");
    EXPECT_EQ(picture(), "          | hip   | knee  | jaw\n"
                         "bodyShape |       |       |\n"
                         "vtx[3]    | 0.500 | 0.500 |\n"
                         "bodyShape |       |       |\n"
                         "vtx[3]    |       |       | 1.000\n");
}

TEST_F(geometryWays, endInEveryShapeThatShowsTheSkin)
{
    open("skin.og[0] mush.ip[0].ig, mush.og[0] bodyShape.i, skin.og[0] otherShape.i");
    load("other.vtx[1] body");
    EXPECT_EQ(rowNames(), "otherShape vtx[1] bodyShape vtx[0] vtx[1] vtx[2]");
    selectCells(1, 0, 1, 0);
    ASSERT_TRUE(model_->setData(model_->index(1, 0), "0.5"));
    EXPECT_EQ(cellText(1, 0) + cellText(1, 1) + cellText(4, 0) + cellText(4, 1),
              "0.5000.5000.5000.500");
    EXPECT_EQ(melWeights("other.vtx[1]", "skin"), "0.5 0.5");
    EXPECT_EQ(melStrings("skinCluster -q -g skin"), "otherShape bodyShape");
    mel("undo");
    EXPECT_EQ(cellText(1, 0) + cellText(4, 1), "0.2500.750");
}

TEST_F(geometryWays, ofNothingSkinnedAreSaidOnce)
{
    open("skin.og[0] bodyShape.i");
    const auto warningFor = [](const std::string &name) {
        std::string message = kNothingSkinnedSelected;
        return message.replace(message.find("^1s"), 3, name);
    };
    const struct {
        const char *selection;
        const char *named; // in the warning; null: none
    } cases[] = {{"other hip", "other"},
                 {"hip", "hip"},
                 {"skin", "skin"},
                 {"body.f[0]", "body.f[0]"},
                 {"other.vtx[1]", "other.vtx[1]"},
                 {"other body", nullptr}};
    for (const auto &c : cases) {
        load(c.selection);
        EXPECT_EQ(takeWarnings(), c.named ? warningFor(c.named) : "") << c.selection;
    }
    mel("select -cl");
    load();
    EXPECT_EQ(takeWarnings(), "") << "nothing selected";
    call("setAutoUpdate", true);
    mel("select -r other");
    EXPECT_EQ(model_->rowCount(), 0);
    EXPECT_EQ(takeWarnings(), "") << "auto update";
    load();
    EXPECT_EQ(takeWarnings(), warningFor("other")) << "the button beside auto update";
}
