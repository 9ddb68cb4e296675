// SPDX-License-Identifier: Apache-2.0
#include "support/sceneFile.h"

class connectionCommand : public SceneFileTest
{
};

TEST_F(connectionCommand, looksThroughNodesThatOnlyConvertUnits)
{
    ASSERT_TRUE(open(write("rig.ma", "createNode transform -n \"dial\";\n"
                                     "createNode transform -n \"wheel\";\n"
                                     "createNode unitConversion -n \"turns\";\n"
                                     "connectAttr \"dial.tx\" \"turns.i\";\n"
                                     "connectAttr \"turns.o\" \"wheel.rx\";\n")));
    const std::pair<const char *, const char *> cases[] = {
        {"listConnections dial", "turns"},
        {"listConnections -scn 1 -p 1 dial", "wheel.rotateX"},
        {"listConnections -scn 1 -c 1 -p 1 wheel.rx", "wheel.rotateX dial.translateX"},
        {"listConnections -scn 1 -type unitConversion wheel", ""},
    };
    for (const auto &[call, expected] : cases)
        EXPECT_EQ(melStrings(call), expected) << call;
}
