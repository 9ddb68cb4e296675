// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

namespace
{

class selectCommand : public MayaSession
{
protected:
    selectCommand()
    {
        mel("polyCube -n a; polyCube -n b; group -em -n g; parent b g; select -cl; joint -n j; "
            "select -cl");
    }
};

} // namespace

TEST_F(selectCommand, adjustsTheList)
{
    const struct {
        const char *commands, *selected;
    } cases[] = {
        {"select a b", "a b"},
        {"select a; select b", "b"},
        {"select a; select -add b; select -add a", "a b"},
        {"select a; select -af b", "b a"},
        {"select a b; select -d a", "b"},
        {"select a b; select -tgl b j", "a j"},
        {"select a b; select -cl", ""},
        {"select a; select -r", "a"},
        {"select \"?\"", "a b g j"},
        {"select -hi g", "g b bShape"},
        {"setAttr g.v 0; select -vis a b; setAttr g.v 1", "a"},
        {"select -ado", "a g j"},
        {"select a.vtx[3] a.vtx[0:1]", "a.vtx[0:1] a.vtx[3]"},
        {"select a.vtx[0:4]; select -d a.vtx[2]", "a.vtx[0:1] a.vtx[3:4]"},
        {"select a.vtx[0:2]; select -tgl a.vtx[2:3]", "a.vtx[0:1] a.vtx[3]"},
        {"select a a.vtx[0]", "a a.vtx[0]"},
        {"select aShape.f[5] a.e[11]", "a.f[5] a.e[11]"},
    };
    for (const auto &c : cases) {
        mel(c.commands);
        EXPECT_EQ(melStrings("ls -sl"), c.selected) << c.commands;
    }
    EXPECT_EQ(melError("select b nobody"), "No object matches name: nobody");
    EXPECT_EQ(melStrings("ls -sl"), "a.f[5] a.e[11]") << "a refused call changes nothing";
    mel("select b; undo");
    EXPECT_EQ(melStrings("ls -sl"), "a.f[5] a.e[11]");
    mel("redo");
    EXPECT_EQ(melStrings("ls -sl"), "b");
}

TEST_F(selectCommand, expandsSets)
{
    mel("skinCluster -tsb j a; select skinCluster1Set");
    EXPECT_EQ(melStrings("ls -sl"), "a.vtx[0:7]");
    mel("select -ne skinCluster1Set");
    EXPECT_EQ(melStrings("ls -sl"), "skinCluster1Set");
    mel("select initialShadingGroup");
    EXPECT_EQ(melStrings("ls -sl"), "a b");
}

TEST_F(selectCommand, keepsTheOrderOfPicksOnRequest)
{
    const std::string picks = "select a.vtx[5]; select -add a.vtx[0:2]; select -add a.vtx[1:3]";
    mel(picks);
    EXPECT_EQ(melStrings("ls -os"), "a.vtx[0:3] a.vtx[5]");
    mel("selectPref -trackSelectionOrder 1; " + picks);
    EXPECT_EQ(melString("selectPref -q -tso"), "1");
    EXPECT_EQ(melStrings("ls -os"), "a.vtx[5] a.vtx[0:2] a.vtx[3]");
    EXPECT_EQ(melStrings("ls -sl"), "a.vtx[0:3] a.vtx[5]");
    mel("selectPref -trackSelectionOrder 0");
    EXPECT_EQ(melStrings("ls -os"), "a.vtx[0:3] a.vtx[5]");
}

TEST_F(selectCommand, leavesHilitedObjectsToHilite)
{
    mel("hilite b");
    EXPECT_EQ(melStrings("ls -hl"), "b");
    EXPECT_EQ(melStrings("ls -sl"), "");
    mel("hilite a; hilite -u b");
    EXPECT_EQ(melStrings("ls -hl"), "a");
    mel("hilite -tgl a j");
    EXPECT_EQ(melStrings("ls -hl"), "j");
    mel("undo; hilite -r b");
    EXPECT_EQ(melStrings("ls -hl"), "b");
    mel("select a.vtx[0]; hilite -u a b");
    EXPECT_EQ(melStrings("ls -hl"), "") << "selecting components hilited the shape";
}

TEST_F(selectCommand, remembersWhatCanBePicked)
{
    EXPECT_EQ(melString("selectType -q -ocm -alc"), "0");
    mel("selectType -ocm -alc true");
    EXPECT_EQ(melString("selectType -q -ocm -alc"), "1");
    mel("selectType -ocm -alc false; selectType -ocm -vertex true");
    EXPECT_EQ(melString("selectType -q -ocm -vertex"), "1");
    EXPECT_EQ(melString("selectType -q -ocm -alc"), "0");
    mel("undo");
    EXPECT_EQ(melString("selectType -q -ocm -alc"), "1");
    mel("select a.f[0]");
    EXPECT_EQ(melStrings("ls -sl"), "a.f[0]") << "scripts select what they like";
    mel("selectType -ocm -alc false");
}

TEST_F(selectCommand, givesJointsTheirParent)
{
    mel("select j; joint -p 1 2 3 -n k; joint -r -p 1 0 0 -n l; select -cl; joint -n m");
    EXPECT_EQ(melStrings("listRelatives -p k l m"), "j k");
    EXPECT_EQ(melStrings("ls -sl"), "m");
    EXPECT_EQ(melNumbers("joint -q -p l"), (std::vector<double>{2, 2, 3}));
    EXPECT_EQ(melStrings("listConnections -p 1 l.inverseScale"), "k.scale");
    mel("joint -e -co -p 0 0 0 k");
    EXPECT_EQ(melNumbers("joint -q -p l"), (std::vector<double>{2, 2, 3}));
    mel("joint -e -p 5 0 0 -o 0 0 90 -rad 2 k");
    EXPECT_EQ(melNumbers("joint -q -o k"), (std::vector<double>{0, 0, 90}));
    EXPECT_EQ(melNumbers("getAttr k.t")[0], 5.0);
}
