// SPDX-License-Identifier: Apache-2.0
#include "skinning/skinningScene.h"

namespace
{

class selectCommand : public skinningScene
{
protected:
    selectCommand()
    {
        make("polyCube -n a; polyCube -n b; group -em -n g; parent b g; select -cl; joint -n j; "
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
        make(c.commands);
        EXPECT_EQ(names("ls -sl"), c.selected) << c.commands;
    }
    EXPECT_EQ(refusal("select b nobody"), "No object matches name: nobody");
    EXPECT_EQ(names("ls -sl"), "a.f[5] a.e[11]") << "a refused call changes nothing";
    make("select b; undo");
    EXPECT_EQ(names("ls -sl"), "a.f[5] a.e[11]");
}

TEST_F(selectCommand, expandsSets)
{
    make("skinCluster -tsb j a; select skinCluster1Set");
    EXPECT_EQ(names("ls -sl"), "a.vtx[0:7]");
    make("select -ne skinCluster1Set");
    EXPECT_EQ(names("ls -sl"), "skinCluster1Set");
    make("select initialShadingGroup");
    EXPECT_EQ(names("ls -sl"), "a b");
}

TEST_F(selectCommand, keepsTheOrderOfPicksOnRequest)
{
    const std::string picks = "select a.vtx[5]; select -add a.vtx[0:2]; select -add a.vtx[4]";
    make(picks);
    EXPECT_EQ(names("ls -os"), "a.vtx[0:2] a.vtx[4:5]");
    make("selectPref -trackSelectionOrder 1; " + picks);
    EXPECT_EQ(number("selectPref -q -tso"), 1);
    EXPECT_EQ(names("ls -os"), "a.vtx[5] a.vtx[0:2] a.vtx[4]");
    EXPECT_EQ(names("ls -sl"), "a.vtx[0:2] a.vtx[4:5]");
}

TEST_F(selectCommand, leavesHilitedObjectsToHilite)
{
    make("hilite b");
    EXPECT_EQ(names("ls -hl"), "b");
    EXPECT_EQ(names("ls -sl"), "");
    make("hilite a; hilite -u b");
    EXPECT_EQ(names("ls -hl"), "a");
    make("hilite -tgl a j");
    EXPECT_EQ(names("ls -hl"), "j");
    make("undo; hilite -r b");
    EXPECT_EQ(names("ls -hl"), "b");
    make("select a.vtx[0]; hilite -u a b");
    EXPECT_EQ(names("ls -hl"), "") << "selecting components hilited the shape";
}

TEST_F(selectCommand, remembersWhatCanBePicked)
{
    EXPECT_EQ(number("selectType -q -ocm -alc"), 0);
    make("selectType -ocm -alc true");
    EXPECT_EQ(number("selectType -q -ocm -alc"), 1);
    make("selectType -ocm -alc false; selectType -ocm -vertex true");
    EXPECT_EQ(number("selectType -q -ocm -vertex"), 1);
    EXPECT_EQ(number("selectType -q -ocm -alc"), 0);
    make("undo");
    EXPECT_EQ(number("selectType -q -ocm -alc"), 1);
    make("select a.f[0]");
    EXPECT_EQ(names("ls -sl"), "a.f[0]") << "scripts select what they like";
}

TEST_F(selectCommand, givesJointsTheirParent)
{
    make("select j; joint -p 1 2 3 -n k; joint -r -p 1 0 0 -n l; select -cl; joint -n m");
    EXPECT_EQ(names("listRelatives -p k l m"), "j k");
    EXPECT_EQ(names("ls -sl"), "m");
    EXPECT_EQ(numbers("joint -q -p l"), (std::vector<double>{2, 2, 3}));
    EXPECT_EQ(names("listConnections -p 1 l.inverseScale"), "k.scale");
    make("joint -e -co -p 0 0 0 k");
    EXPECT_EQ(numbers("joint -q -p l"), (std::vector<double>{2, 2, 3}));
    make("joint -e -p 5 0 0 -o 0 0 90 -rad 2 k");
    EXPECT_EQ(numbers("joint -q -o k"), (std::vector<double>{0, 0, 90}));
    EXPECT_EQ(numbers("getAttr k.t")[0], 5.0);
}
