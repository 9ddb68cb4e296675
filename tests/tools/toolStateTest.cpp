// SPDX-License-Identifier: Apache-2.0
#include "tools/clothScene.h"

#include <maya/MEventMessage.h>
#include <maya/MString.h>

namespace
{

// Counts the deliveries of an event while it lives.
class eventCounter
{
public:
    explicit eventCounter(const char *event)
        : callback_(MEventMessage::addEventCallback(event, count, this))
    {
    }
    ~eventCounter() { MMessage::removeCallback(callback_); }
    eventCounter(const eventCounter &) = delete;
    eventCounter &operator=(const eventCounter &) = delete;

    int times() const { return times_; }

private:
    static void count(void *self) { ++static_cast<eventCounter *>(self)->times_; }

    int times_ = 0;
    MCallbackId callback_;
};

class toolState : public clothScene
{
};

} // namespace

TEST_F(toolState, entersToolsUndoablyAndSaysSo)
{
    const eventCounter changes("ToolChanged");
    const eventCounter laterChanges("PostToolChanged");
    mel("ArtPaintSkinWeightsTool; artAttrSkinToolScript 4");
    EXPECT_EQ(melString("currentCtx"), "artAttrSkinContext");
    EXPECT_EQ(changes.times(), 1); // the second command finds the tool entered
    mel("undo");
    EXPECT_EQ(melString("currentCtx"), "selectSuperContext");
    mel("redo");
    EXPECT_EQ(melString("currentCtx"), "artAttrSkinContext");
    mel("setToolTo moveSuperContext");
    EXPECT_EQ(changes.times(), 4);
    EXPECT_EQ(laterChanges.times(), 4);
    EXPECT_NE(melError("setToolTo nobody").find("Tool context 'nobody' not found."),
              std::string::npos);
    EXPECT_EQ(melString("currentCtx"), "moveSuperContext");
    EXPECT_EQ(melString("contextInfo -exists artAttrSkinPaintCtx"), "1");
    EXPECT_EQ(melString("contextInfo -exists nobody"), "0");
}

TEST_F(toolState, keepsTheSettingsOfThePaintToolUnderBothNames)
{
    mel("ArtPaintSkinWeightsTool; artAttrSkinPaintCtx -e -opacity 0.25 -value 0.5 -clamp lower "
        "-radius 3 -colorfeedback 1 artAttrSkinPaintCtx");
    mel("artAttrPaintOperation artAttrSkinPaintCtx Add; artAttrSkinPaintCtx -e -opacity 0.75 "
        "artAttrSkinContext");
    const struct {
        const char *flag, *value;
    } cases[] = {{"opacity", "0.75"}, {"value", "0.5"},
                 {"clamp", "lower"},  {"selectedattroper", "additive"},
                 {"radius", "3"},     {"colorfeedback", "1"},
                 {"xrayJoints", "0"}, {"skinPaintMode", "1"}};
    for (const auto &c : cases)
        EXPECT_EQ(melString(std::string("artAttrSkinPaintCtx -q -") + c.flag + " `currentCtx`"),
                  c.value)
            << c.flag;
    mel("undo");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -opacity artAttrSkinContext"), "0.25");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -sao artAttrSkinContext"), "absolute");
}

TEST_F(toolState, forgetsAnInfluenceThatGoes)
{
    mel("ArtPaintSkinWeightsTool; artSkinSelectInfluence artAttrSkinPaintCtx joint3 label");
    mel("rename joint3 tip");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -influence artAttrSkinContext"), "tip");
    mel("delete tip");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -influence artAttrSkinContext"), "");
    mel("file -f -new");
    EXPECT_EQ(melString("artAttrSkinPaintCtx -q -influence artAttrSkinContext"), "");
}

TEST_F(toolState, putsPickingMasksBack)
{
    mel("selectType -ocm -alc false; selectType -ocm -vertex true");
    EXPECT_EQ(melString("selectType -q -ocm -alc"), "0");
    EXPECT_EQ(melString("selectType -q -ocm -vertex"), "1");
    const eventCounter changes("SelectTypeChanged");
    mel("selectType -ocm -vertex 0");
    EXPECT_EQ(melString("selectType -q -ocm -vertex"), "0");
    mel("undo");
    EXPECT_EQ(melString("selectType -q -ocm -vertex"), "1");
    EXPECT_EQ(changes.times(), 2);
}
