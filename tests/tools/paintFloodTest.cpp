// SPDX-License-Identifier: Apache-2.0
#include "tools/clothScene.h"

namespace
{

constexpr char kExceeds[] = "Some weights could not be set to the specified value. The weight "
                            "total would have exceeded 1.0.";

class paintFlood : public clothScene
{
protected:
    // Floods a vertex or range with joint1, the flags of the brush given.
    static void flood(const std::string &vertices, const std::string &brush)
    {
        mel("select cloth.vtx[" + vertices +
            "]; ArtPaintSkinWeightsTool; artSkinSelectInfluence artAttrSkinPaintCtx joint1;"
            "artAttrSkinPaintCtx -e " +
            brush + " `currentCtx`;");
        mel("artAttrSkinPaintCtx -e -clear `currentCtx`;");
    }
};

} // namespace

TEST_F(paintFlood, smoothsAsRiggersScriptsDo)
{
    set("12", "0.8 0.15 0.05");
    const char *neighbours[] = {"7", "11", "13", "17"};
    const char *theirs[] = {"0.1 0.9 0", "0.3 0.7 0", "0.5 0.5 0", "0.7 0.3 0"};
    for (int i = 0; i < 4; ++i)
        set(neighbours[i], theirs[i]);
    mel("selectType -ocm -alc false;\nselectType -ocm -vertex true;\nselect -r cloth.vtx[12] ;\n"
        "ArtPaintSkinWeightsTool;\nartAttrSkinToolScript 4;\n"
        "artAttrSkinJointMenu(\"artJoinListPopupMenu\", \"artAttrSkinPaintCtx\" );\n"
        "artAttrPaintOperation artAttrSkinPaintCtx Smooth;\n"
        "artAttrSkinPaintCtx -e -skinPaintMode 1 artAttrSkinContext;\n"
        "artSkinSelectInfluence artAttrSkinPaintCtx joint1 ;\n"
        "artAttrSkinPaintCtx -e -opacity 0.5 `currentCtx`;");
    mel("artAttrSkinPaintCtx -e -clear `currentCtx`;");
    EXPECT_EQ(weights(12), "0.6 0.3 0.1");
    EXPECT_EQ(weights(7), "0.1 0.9 0"); // counted, not written
    mel("undo");
    EXPECT_EQ(weights(12), "0.8 0.15 0.05");
    mel("redo");
    EXPECT_EQ(weights(12), "0.6 0.3 0.1");
}

TEST_F(paintFlood, appliesOperationOpacityAndClamp)
{
    const struct {
        const char *brush, *result;
    } cases[] = {
        {"-sao absolute -value 0.8 -opacity 0.5", "0.6 0.4 0"},
        {"-sao additive -value 0.3 -opacity 0.5", "0.55 0.45 0"},
        {"-sao scale -value 0.5 -opacity 1", "0.2 0.8 0"},
        {"-sao scale -value 0.5 -opacity 0.5", "0.3 0.7 0"},
        {"-sao additive -value 1 -opacity 1 -clamp upper -maxvalue 0.7", "0.7 0.3 0"},
        {"-sao absolute -value 0 -clamp both -minvalue 0.25", "0.25 0.75 0"},
        {"-sao absolute -value 0 -clamp none", "0 1 0"},
    };
    for (const auto &c : cases) {
        set("12", "0.4 0.6 0");
        flood("12", c.brush);
        EXPECT_EQ(weights(12), c.result) << c.brush;
    }
    EXPECT_EQ(takeWarnings(), "");
}

TEST_F(paintFlood, paintsAllVerticesWhenNoneAreSelectedAndWarnsOnce)
{
    set("*", "0.5 0.5 0");
    mel("select cloth; ArtPaintSkinWeightsTool; artSkinSelectInfluence artAttrSkinPaintCtx joint1;"
        "artAttrSkinPaintCtx -e -sao additive -value 5 artAttrSkinPaintCtx");
    takeWarnings();
    mel("artAttrSkinPaintCtx -e -clear artAttrSkinPaintCtx");
    EXPECT_EQ(takeWarnings(), kExceeds);
    EXPECT_EQ(weights(0), "1 0 0");
    EXPECT_EQ(weights(24), "1 0 0");
}

TEST_F(paintFlood, givesLockedInfluencesNoPaint)
{
    set("12", "0.4 0.3 0.3");
    mel("skinCluster -e -inf joint3 -lw 1 skin");
    flood("12", "-sao absolute -value 0.1");
    EXPECT_EQ(weights(12), "0.1 0.6 0.3");
    mel("skinCluster -e -inf joint1 -lw 1 skin");
    flood("12", "-sao absolute -value 0.9");
    EXPECT_EQ(weights(12), "0.1 0.6 0.3");
    EXPECT_EQ(takeWarnings(), "");
}

TEST_F(paintFlood, leavesMeshesAloneThatTheInfluenceDoesNotMove)
{
    mel("polyCube -n other; skinCluster -tsb -n skin2 joint2 other");
    mel("select cloth.vtx[12] other; ArtPaintSkinWeightsTool;"
        "artSkinSelectInfluence artAttrSkinPaintCtx joint3;"
        "artAttrSkinPaintCtx -e -value 0.25 -clear artAttrSkinContext");
    EXPECT_EQ(weights(12), "0.75 0 0.25");
    EXPECT_EQ(melNumbers("skinPercent -q -v skin2 other.vtx[0]"), std::vector<double>{1.0});
}

TEST_F(paintFlood, refusesAndChangesNothing)
{
    const std::string flood = "artAttrSkinPaintCtx -e -clear artAttrSkinContext";
    EXPECT_NE(melError("artAttrSkinPaintCtx -e -opacity 1 nobody")
                  .find("Tool context 'nobody' not found."),
              std::string::npos);
    mel("createNode transform -n loose; select cloth; ArtPaintSkinWeightsTool");
    EXPECT_NE(melError(flood).find("No influence has been selected to paint."), std::string::npos);
    mel("artSkinSelectInfluence artAttrSkinPaintCtx joint2; artAttrSkinPaintCtx -e -value 1 "
        "artAttrSkinPaintCtx");
    const struct {
        const char *setUp;
        std::string command;
        const char *error;
    } cases[] = {
        {"", "artSkinSelectInfluence artAttrSkinPaintCtx nobody", "No object matches name: nobody"},
        {"", "artSkinSelectInfluence artAttrSkinPaintCtx loose",
         "'loose' is no influence of a skin cluster."},
        {"", "artAttrPaintOperation artAttrSkinPaintCtx Sharpen",
         "'Sharpen' is no paint operation."},
        {"", "artAttrSkinPaintCtx -e -value 0.5 -opacity 2 artAttrSkinPaintCtx",
         "The value 2 of flag 'op' is out of range or not supported."},
        {"select joint1", flood, "'joint2' is no influence of a skinned object that is selected."},
        {"select cloth; setToolTo selectSuperContext", flood,
         "'artAttrSkinContext' is not the current tool."},
    };
    for (const auto &c : cases) {
        mel(c.setUp);
        EXPECT_NE(melError(c.command).find(c.error), std::string::npos) << c.command;
    }
    EXPECT_EQ(weights(12), "1 0 0");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -value artAttrSkinContext"), "1");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -influence artAttrSkinContext"), "joint2");
}
