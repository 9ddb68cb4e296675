// SPDX-License-Identifier: Apache-2.0
#include "skinning/skinningScene.h"

namespace
{

class skinCluster : public skinningScene
{
protected:
    skinCluster()
    {
        make("polyCube -n body; select -cl; joint -p 0 -1 0; joint -p 0 0 0; joint -p 0 1 0;"
             "select -cl");
    }
};

} // namespace

TEST_F(skinCluster, bindsWhatIsNamedOrSelected)
{
    make("select joint2 body");
    EXPECT_EQ(names("skinCluster -tsb -n skin -nw 2 -wd 1 -omi 1 -sm 1 -dr 6"), "skin");
    const struct {
        const char *query;
        int value;
    } settings[] = {{"-mi", 2}, {"-omi", 1}, {"-nw", 2}, {"-wd", 1}, {"-sm", 1}, {"-bm", 0}};
    for (const auto &c : settings)
        EXPECT_EQ(number(std::string("skinCluster -q ") + c.query + " body"), c.value) << c.query;
    EXPECT_EQ(names("skinCluster -q -inf skin"), "joint2");
    EXPECT_EQ(names("skinCluster -q -g bodyShape"), "bodyShape");
    double dropoff = 0;
    EXPECT_TRUE(MGlobal::executeCommand("skinCluster -inf joint2 -q -dr skin", dropoff));
    EXPECT_EQ(dropoff, 6.0);
}

TEST_F(skinCluster, refusesAndChangesNothing)
{
    make("polyCube -n other; select -cl");
    const std::string before = names("ls");
    const struct {
        const char *command, *error;
    } cases[] = {
        {"skinCluster body", "There is no joint to bind to."},
        {"skinCluster joint1", "There is no geometry to bind."},
        {"skinCluster joint1 body other", "Only one geometry can be bound at a time."},
        {"skinCluster joint1 nobody", "No object matches name: nobody"},
        {"skinCluster -bm 2 joint1 body",
         "The value 2 of flag 'bm' is out of range or not supported."},
        {"skinCluster -bm 3 joint1 body",
         "The value 3 of flag 'bm' is out of range or not supported."},
        {"skinCluster -mi 0 joint1 body",
         "The value 0 of flag 'mi' is out of range or not supported."},
        {"skinCluster -dr 0 joint1 body", "The dropoff rate must be from 0.1 to 10."},
        {"skinCluster -e -sw 0.5 body",
         "No skinCluster was given, and none belongs to what is selected."},
        {"skinCluster -q -inf body",
         "No skinCluster was given, and none belongs to what is selected."},
    };
    for (const auto &c : cases)
        EXPECT_EQ(refusal(c.command), c.error) << c.command;
    EXPECT_EQ(names("ls"), before);
    EXPECT_EQ(number("attributeQuery -n joint1 -ex lockInfluenceWeights"), 0);
}

TEST_F(skinCluster, locksAnInfluenceOnItsJoint)
{
    make("skinCluster -tsb joint1 joint3 body");
    EXPECT_EQ(number("skinCluster -inf joint3 -q -lw skinCluster1"), 0);
    make("skinCluster -e -inf joint3 -lw true skinCluster1");
    EXPECT_EQ(number("skinCluster -inf joint3 -q -lw skinCluster1"), 1);
    EXPECT_EQ(number("getAttr joint3.liw"), 1);
    make("undo; setAttr joint1.liw 1");
    EXPECT_EQ(number("skinCluster -inf joint1 -q -lw body"), 1);
    EXPECT_EQ(number("skinCluster -inf joint3 -q -lw body"), 0);
}

TEST_F(skinCluster, takesInfluencesInAndOut)
{
    make("skinCluster -tsb -mi 3 joint1 joint3 body");
    EXPECT_EQ(weights("body.vtx[0]"), "0.968 0.032") << "joint1's bone ends at joint2";
    make("skinPercent -tv joint1 0.75 skinCluster1 body.vtx[0]");

    make("skinCluster -e -ai joint2 -lw true -wt 0 skinCluster1");
    EXPECT_EQ(names("skinCluster -q -inf body"), "joint1 joint3 joint2");
    EXPECT_EQ(weights("body.vtx[0]"), "0.75 0.25 0") << "the usual way: nothing moves";
    EXPECT_EQ(number("getAttr joint2.liw"), 1);
    EXPECT_EQ(names("skinCluster -q -wi body"), "joint1 joint3");
    EXPECT_EQ(number("skinCluster -q -rui body"), 1);
    make("skinCluster -e -rui 1 body");
    EXPECT_EQ(names("skinCluster -q -inf body"), "joint1 joint3");

    make("skinCluster -e -ai joint2 -lw off -wt 0.5 skinCluster1");
    EXPECT_EQ(weights("body.vtx[0]"), "0.375 0.125 0.5");
    make("skinCluster -e -inf joint3 -lw 1 skinCluster1; skinCluster -e -ri joint1 skinCluster1");
    EXPECT_EQ(weights("body.vtx[0]"), "0.125 0.875") << "what was held stays held";
    EXPECT_EQ(names("listConnections -s 1 -d 0 skinCluster1.matrix"), "joint3 joint2");
    EXPECT_EQ(numbers("getAttr -mi skinCluster1.matrix"), (std::vector<double>{1, 2}));
    make("undo");
    EXPECT_EQ(weights("body.vtx[0]"), "0.375 0.125 0.5");
    make("skinCluster -e -siv joint2 skinCluster1");
    EXPECT_EQ(names("ls -sl"), "body.vtx[0:7]");
}
