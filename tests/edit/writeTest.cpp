// SPDX-License-Identifier: Apache-2.0
//
// What writers write, and the replay takes back.

#include <algorithm>
#include <random>

#include "edit/preparedScene.h"
#include "model/messages.h"

class writeEdit : public PreparedScene
{
};

TEST_F(writeEdit, takesOutWeightsThatTheTableDoesNotShow)
{
    makeSkin("body", {"a", "b", "c", "d"},
             {{.5, .3, .1999, .0001}, {.4999, .3, .2, .0001}, {.6, .3999, .0001, 0}, {1, 0, 0, 0}});
    load("body");
    handOver_.maxInfluenceRows = {1, 2, 3, 4};
    maxInfluences_ = 2;
    ASSERT_EQ(prepare(prepareMaxInfluences), preparation::ready);
    EXPECT_TRUE(writeMaxInfluences(edit_));
    EXPECT_EQ(allWeights(), "0.625 0.375 0 0; 0.624953 0.375047 0 0; 0.6 0.3999 0.0001 0; 1 0 0 0");
    EXPECT_TRUE(replayDisplaced(edit_));
    EXPECT_EQ(allWeights().substr(0, 22), "0.5 0.3 0.1999 0.0001;");
}

// Vertices are written together unless what one gets comes from those around it: a locked joint
// leaves weight to joints that have none.
TEST_F(writeEdit, limitsManyVerticesAsItLimitsEachAlone)
{
    std::mt19937 random(1);
    std::vector<std::vector<double>> rows(30, std::vector<double>(6));
    for (std::vector<double> &row : rows) {
        for (int unit = 0; unit < 64; ++unit)
            row[random() % row.size() * (random() % 3) / 2] += 1.0 / 64;
    }
    const auto held = [] {
        std::vector<std::vector<double>> all;
        for (int vertex = 0; vertex < 30; ++vertex)
            all.push_back(exactWeights(vertex));
        return all;
    };
    const auto limit = [this](const QVector<int> &tableRows) {
        handOver_.maxInfluenceRows = tableRows;
        ASSERT_EQ(prepare(prepareMaxInfluences), preparation::ready);
        ASSERT_TRUE(writeMaxInfluences(edit_));
    };
    QVector<int> tableRows;
    for (int row = 1; row <= 30; ++row)
        tableRows.append(row);
    for (const char *distribution : {"0", "1"}) {
        for (maxInfluences_ = 1; maxInfluences_ < 4; ++maxInfluences_) {
            mel("file -f -new");
            makeSkin("body", {"a", "b", "c", "d", "e", "f"}, rows);
            mel(std::string("setAttr bodySkin.wd ") + distribution + "; setAttr f.liw 1");
            load("body");
            std::shuffle(tableRows.begin(), tableRows.end(), random);
            const auto before = held();
            limit(tableRows);
            EXPECT_EQ(edit_.writes.size() == 1, *distribution == '0');
            const auto together = held();
            EXPECT_TRUE(replayDisplaced(edit_));
            EXPECT_EQ(held(), before);
            for (int i = 0; i < tableRows.size(); ++i)
                limit({tableRows.at(i)});
            EXPECT_EQ(held(), together) << maxInfluences_ << ", " << distribution;
            EXPECT_NE(together, before);
        }
    }
}

TEST_F(writeEdit, stopsAtAJointThatIsNoInfluence)
{
    makeSkin("body", {"a", "b", "c"}, {{.5, .3, .2}, {.2, .3, .5}, {.5, .3, .2}, {1, 0, 0}});
    load("body");
    mel("skinCluster -e -ri c bodySkin");
    maxInfluences_ = 2;
    handOver_.maxInfluenceRows = {2, 1, 3};
    ASSERT_EQ(prepare(prepareMaxInfluences), preparation::ready);
    EXPECT_FALSE(writeMaxInfluences(edit_));
    EXPECT_EQ(takeInfos(), kNoInfluence);
    EXPECT_EQ(allWeights().substr(7 * 0, 13), "0.625 0.375; ") << "row 1 comes after the stop";
    EXPECT_EQ(edit_.oldWeights.size(), 2) << "row 2 was written, row 1 broke off";
    EXPECT_TRUE(replayDisplaced(edit_));
}

TEST_F(writeEdit, roundsWithoutNormalizing)
{
    makeSkin("body", {"a", "b"}, {{.123, .877}, {.5, .5}, {1, 0}, {1, 0}});
    makeSkin("hat", {"b", "c"}, {{.3, .7}, {.3, .7}, {.3, .7}, {.3, .7}});
    load("hat body.vtx[0:1]");
    const std::string before = allWeights() + allWeights("hat");
    handOver_.roundedRows = model_.weights().rows;
    handOver_.roundedRows[6][3] = 0.9; // body.vtx[0] under b, c, a: rows 0 to 4 are the hat's
    for (const char *mode : {"0", "2"}) {
        mel(std::string("setAttr bodySkin.nw ") + mode);
        ASSERT_EQ(prepare(prepareRounding), preparation::ready);
        EXPECT_TRUE(writeRounding(edit_));
        EXPECT_EQ(melString("getAttr bodySkin.nw"), mode);
        EXPECT_NE(allWeights().find("0.9"), std::string::npos) << allWeights();
        EXPECT_TRUE(replayDisplaced(edit_));
        EXPECT_EQ(allWeights() + allWeights("hat"), before);
    }
}

TEST_F(writeEdit, writesNothingIntoASceneThatHasChanged)
{
    makeSkin("body", {"a", "b"}, {{.5, .5}, {1, 0}, {.2, .8}, {0, 1}});
    makeSkin("hat", {"b", "c"}, {{.3, .7}, {.3, .7}, {.3, .7}, {.3, .7}});
    load("hat body");
    handOver_.pendingCells = {{1, 0}, {6, 0}};
    handOver_.pendingValues = {0.9, 0.9};
    ASSERT_EQ(prepare(prepareCells), preparation::ready);
    EXPECT_TRUE(writeCells(edit_));
    mel("delete bodySkin");
    EXPECT_FALSE(replayDisplaced(edit_));
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
    EXPECT_EQ(allWeights("hat"), "0.9 0.1; 0.3 0.7; 0.3 0.7; 0.3 0.7") << "all or nothing";
    EXPECT_FALSE(writeCells(edit_));
    EXPECT_TRUE(edit_.oldWeights.isEmpty());
}
