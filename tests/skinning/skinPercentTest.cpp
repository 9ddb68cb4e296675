// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

namespace
{

constexpr char kCouldNotSet[] = "Some weights could not be set to the specified value. The "
                                "weight total would have exceeded 1.0.";

// Unconnected joints j0, j1, ... at the distances 1, 2, 4, 8 from vertex 0 of a plane.
class skinPercent : public MayaSession
{
protected:
    void bind(int joints)
    {
        mel("file -f -new; polyPlane -sx 1 -sy 1 -n body");
        std::string influences;
        for (int i = 0; i < joints; ++i) {
            const std::string name = "j" + std::to_string(i);
            mel("select -cl; joint -n " + name + " -p -0.5 " + std::to_string(1 << i) + " 0.5");
            influences += name + " ";
        }
        mel("skinCluster -tsb -mi 4 " + influences + "body");
    }

    // Stores "0.5 0.3 0.2" as it stands, whatever its sum.
    void store(const std::string &row)
    {
        std::string flags;
        int joint = 0;
        for (std::size_t at = 0; at < row.size(); at = row.find_first_not_of(' ', at)) {
            const std::size_t end = std::min(row.find(' ', at), row.size());
            flags += " -tv j" + std::to_string(joint++) + " " + row.substr(at, end - at);
            at = end;
        }
        mel("skinPercent -nrm off" + flags + " skinCluster1 body.vtx[0]");
    }
};

} // namespace

// The rule of interactive normalisation (see skin/writeRule.h), and what the flags make of it.
TEST_F(skinPercent, keepsTheSumAtOne)
{
    const struct {
        const char *before, *locked, *flags, *after;
        bool warns;
    } cases[] = {
        {"0.5 0.3 0.2 0", "", "-tv j0 0.8", "0.8 0.12 0.08 0", false},
        {"0.5 0.3 0.2 0", "j1", "-tv j0 0.2", "0.2 0.3 0.5 0", false},
        {"0.5 0.3 0.2 0", "j1", "-tv j0 0.9", "0.7 0.3 0 0", true},
        {"0.5 0.3 0.2", "j1 j2", "-tv j0 0.2", "0.5 0.3 0.2", true},
        {"1 0 0", "", "-tv j0 0.4", "0.4 0.564706 0.0352941", false},
        {"1", "", "-tv j0 0.4", "1", true},
        {"0.4 0.3 0.2 0.1", "", "-tv j0 0.2 -tv j2 0.6", "0.2 0.15 0.6 0.05", false},
        {"0.4 0.3 0.2 0.1", "", "-tv j0 .5 -tv j1 .2 -tv j2 .1 -tv j3 .1",
         "0.555556 0.222222 0.111111 0.111111", true},
        {"0.5 0.3 0.2", "", "-r true -tv j0 0.3", "0.8 0.12 0.08", false},
        {"0.5 0.3 0.2", "", "-zri true -tv j0 1", "1 0 0", false},
        {"0.5 0.3 0.2", "j1", "-zri true -tv j0 0.7", "0.7 0.3 0", false},
        {"0.5 0.3 0.2", "", "-nrm off -tv j0 0.2", "0.2 0.3 0.2", false},
        {"0.5 0.25 0.05", "", "-nrm on", "0.625 0.3125 0.0625", false},
        {"0.6 0.38 0.02", "", "-prw 0.1", "0.612245 0.387755 0", false},
        {"0.6 0.38 0.02", "j2", "-prw 0.5", "0.98 0 0.02", false},
        {"0.6 0.38 0.02", "", "-nrm off -prw 0.1", "0.6 0.38 0", false},
    };
    for (const auto &c : cases) {
        const std::string before = c.before;
        SCOPED_TRACE(before + " locked " + c.locked + ": " + c.flags);
        bind(1 + int(std::count(before.begin(), before.end(), ' ')));
        store(before);
        for (const char *joint : {"j0", "j1", "j2"}) {
            if (std::string(c.locked).find(joint) != std::string::npos)
                mel(std::string("skinCluster -e -inf ") + joint + " -lw on skinCluster1");
        }
        mel(std::string("skinPercent ") + c.flags + " skinCluster1 body.vtx[0]");
        EXPECT_EQ(melWeights("body.vtx[0]"), c.after);
        EXPECT_EQ(takeWarnings(), c.warns ? kCouldNotSet : "");
        mel("undo");
        EXPECT_EQ(melWeights("body.vtx[0]"), before);
    }
    mel("skinPercent -tv j0 1.0000000002 skinCluster1 body.vtx[*]");
    EXPECT_EQ(takeWarnings(), kCouldNotSet) << "once per command";
}

TEST_F(skinPercent, leavesRawWeightsUnlessInteractive)
{
    for (const char *mode : {"0", "2"}) {
        bind(3);
        store("0.5 0.3 0.2");
        mel(std::string("skinCluster -e -nw ") + mode + " skinCluster1");
        mel("skinPercent -tv j0 0.2 skinCluster1 body.vtx[0]");
        EXPECT_EQ(melWeights("body.vtx[0]"), "0.2 0.3 0.2") << mode;
        mel("skinCluster -e -fnw 1 skinCluster1");
        EXPECT_EQ(melWeights("body.vtx[0]"), "0.285714 0.428571 0.285714") << mode;
    }
}

TEST_F(skinPercent, answersForComponentsAndTheSelection)
{
    bind(2);
    mel("select body.vtx[0:1]; skinPercent -tv j0 1 skinCluster1");
    mel("skinPercent -tv j0 0.5 skinCluster1 body.vtx[1]");
    EXPECT_EQ(melWeights("body.vtx[0] body.vtx[1]"), "0.75 0.25") << "the mean";
    EXPECT_EQ(melString("skinPercent -t j1 -q skinCluster1 body.vtx[1]"), "0.5");
    EXPECT_EQ(melStrings("skinPercent -ib 0.1 -q -t skinCluster1 body.vtx[0]"), "j0");
    EXPECT_EQ(melStrings("skinPercent -q -t skinCluster1 body.vtx[0]"), "j0 j1");

    mel("polyCube -n other; select -cl");
    const struct {
        const char *command, *error;
    } refusals[] = {
        {"skinPercent -tv nobody 1 skinCluster1 body.vtx[0]", "No object matches name: nobody"},
        {"skinPercent -tv body 1 skinCluster1 body.vtx[0]",
         "'body' is no influence of skinCluster1."},
        {"skinPercent -tv j0 1 skinCluster1 other", "'other' is not deformed by skinCluster1."},
        {"skinPercent -tv j0 1 skinCluster1 body.f[0]", "Weights belong to vertices: body.f[0]"},
        {"skinPercent -tv j0 1 skinCluster1", "There are no components to work on."},
        {"skinPercent -tv j0 1 body body.vtx[0]", "Object 'body' is not a skinCluster."},
    };
    for (const auto &c : refusals)
        EXPECT_EQ(melError(c.command), c.error) << c.command;
    EXPECT_EQ(melWeights("body.vtx[1]"), "0.5 0.5");
}
