// SPDX-License-Identifier: Apache-2.0
// Where joints stand when a mesh is bound.

#include "support/sceneFile.h"

using bindPlaces = SceneFileTest;

TEST_F(bindPlaces, areWarnedOfWhereANodeMovesAJointThatIsNotEvaluated)
{
    constexpr const char *kRig = "createNode transform -n rig;\n"
                                 "createNode joint -n a -p rig;\n"
                                 "createNode joint -n b -p a;\n"
                                 "createNode transform -n ctl;\n"
                                 "createNode multMatrix -n mm;\n"
                                 "createNode animCurveTL -n curve;\n"
                                 "createNode furRoot -n fur -p rig;\n"
                                 "createNode joint -n inFur -p fur;\n";
    const struct {
        const char *statement;
        const char *joints;
        const char *warning;
    } cases[] = {
        {"", "a b", ""},
        {"connectAttr a.s b.is; connectAttr ctl.t a.t; connectAttr ctl.wm[0] b.opm;", "a b", ""},
        {"connectAttr curve.o b.tx;", "a b",
         "skinCluster: 'b' hangs on 'curve' (animCurveTL), which is not evaluated: its bind matrix "
         "may be wrong."},
        {"connectAttr mm.o rig.opm;", "a b",
         "skinCluster: 'a' hangs on 'mm' (multMatrix), which is not evaluated: its bind matrix may "
         "be wrong. So may those of 1 other influences."},
        {"connectAttr curve.o ctl.rx; connectAttr ctl.wm[0] b.opm;", "b",
         "skinCluster: 'b' hangs on 'curve' (animCurveTL), which is not evaluated: its bind matrix "
         "may be wrong."},
        {"", "inFur",
         "skinCluster: 'inFur' hangs on 'fur' (furRoot), which is not evaluated: its bind matrix "
         "may be wrong."},
    };
    for (const auto &c : cases) {
        ASSERT_TRUE(open(write("rig.ma", std::string(kRig) + c.statement + "\n")));
        takeWarnings();
        mel("polyCube -n body; polyCube -n other; createNode joint -n free");
        mel(std::string("skinCluster -tsb ") + c.joints + " body");
        EXPECT_EQ(takeWarnings(), c.warning) << c.statement;
        mel("skinCluster -tsb -n late free other");
        for (std::string joints = c.joints; !joints.empty();) {
            const std::string joint = joints.substr(0, joints.find(' '));
            joints.erase(0, joint.size() + 1);
            mel("skinCluster -e -ai " + joint + " late");
        }
        EXPECT_EQ(takeWarnings().empty(), *c.warning == '\0') << c.statement;
    }
}

TEST_F(bindPlaces, areThoseOfTheBindPoseAlsoForJointsThatAreNoInfluences)
{
    mel("polyCube -h 4 -sy 4 -n body; select -cl; joint -n low -p 0 -2 0; joint -n mid -p 0 0 0;"
        "joint -n end -p 0 2 0; skinCluster -tsb low mid end body");
    mel("skinCluster -e -ri end skinCluster1; skinPercent -rtd skinCluster1 body.vtx[0:19]");
    const std::string bound = melWeights("body.vtx[8]") + " / " + melWeights("body.vtx[11]");
    mel("move -r 9 0 0 end; skinPercent -rtd skinCluster1 body.vtx[0:19]");
    EXPECT_EQ(melWeights("body.vtx[8]") + " / " + melWeights("body.vtx[11]"), bound);
}
