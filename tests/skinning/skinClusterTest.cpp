// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

namespace
{

class skinCluster : public MayaSession
{
protected:
    skinCluster()
    {
        mel("polyCube -n body; select -cl; joint -p 0 -1 0; joint -p 0 0 0; joint -p 0 1 0;"
            "select -cl");
    }
};

} // namespace

TEST_F(skinCluster, bindsWhatIsNamedOrSelected)
{
    mel("select joint2 body");
    EXPECT_EQ(melStrings("skinCluster -tsb -n skin -nw 2 -wd 1 -omi 1 -sm 1 -dr 6"), "skin");
    const struct {
        const char *query, *value;
    } settings[] = {{"-mi", "2"}, {"-omi", "1"}, {"-nw", "2"},
                    {"-wd", "1"}, {"-sm", "1"},  {"-bm", "0"}};
    for (const auto &c : settings)
        EXPECT_EQ(melString(std::string("skinCluster -q ") + c.query + " body"), c.value);
    EXPECT_EQ(melStrings("skinCluster -q -inf skin"), "joint2");
    EXPECT_EQ(melStrings("skinCluster -q -g bodyShape"), "bodyShape");
    EXPECT_EQ(melString("skinCluster -inf joint2 -q -dr skin"), "6");
}

TEST_F(skinCluster, refusesAndChangesNothing)
{
    mel("polyCube -n other; select -cl");
    const std::string before = melStrings("ls");
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
        EXPECT_EQ(melError(c.command), c.error) << c.command;
    EXPECT_EQ(melStrings("ls"), before);
    EXPECT_EQ(melString("attributeQuery -n joint1 -ex lockInfluenceWeights"), "0");
}

TEST_F(skinCluster, locksAnInfluenceOnItsJoint)
{
    mel("skinCluster -tsb joint1 joint3 body");
    EXPECT_EQ(melString("skinCluster -inf joint3 -q -lw skinCluster1"), "0");
    mel("skinCluster -e -inf joint3 -lw true skinCluster1");
    EXPECT_EQ(melString("skinCluster -inf joint3 -q -lw skinCluster1"), "1");
    EXPECT_EQ(melString("getAttr joint3.liw"), "1");
    mel("undo; setAttr joint1.liw 1");
    EXPECT_EQ(melString("skinCluster -inf joint1 -q -lw body"), "1");
    EXPECT_EQ(melString("skinCluster -inf joint3 -q -lw body"), "0");
}

TEST_F(skinCluster, takesInfluencesInAndOut)
{
    mel("skinCluster -tsb -mi 3 joint1 joint3 body");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.968 0.032") << "joint1's bone ends at joint2";
    mel("skinPercent -tv joint1 0.75 skinCluster1 body.vtx[0]");

    mel("skinCluster -e -ai joint2 -lw true -wt 0 skinCluster1");
    EXPECT_EQ(melStrings("skinCluster -q -inf body"), "joint1 joint3 joint2");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.75 0.25 0") << "the usual way: nothing moves";
    EXPECT_EQ(melString("getAttr joint2.liw"), "1");
    EXPECT_EQ(melStrings("skinCluster -q -wi body"), "joint1 joint3");
    EXPECT_EQ(melString("skinCluster -q -rui body"), "1");
    mel("skinCluster -e -rui 1 body");
    EXPECT_EQ(melStrings("skinCluster -q -inf body"), "joint1 joint3");

    mel("skinCluster -e -ai joint2 -lw off -wt 0.5 skinCluster1");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.375 0.125 0.5");
    mel("skinCluster -e -inf joint3 -lw 1 skinCluster1; skinCluster -e -ri joint1 skinCluster1");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.125 0.875") << "what was held stays held";
    EXPECT_EQ(melStrings("listConnections -s 1 -d 0 skinCluster1.matrix"), "joint3 joint2");
    EXPECT_EQ(melNumbers("getAttr -mi skinCluster1.matrix"), (std::vector<double>{1, 2}));
    mel("undo");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.375 0.125 0.5");
    mel("skinCluster -e -siv joint2 skinCluster1");
    EXPECT_EQ(melStrings("ls -sl"), "body.vtx[0:7]");
}
