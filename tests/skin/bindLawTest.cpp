// SPDX-License-Identifier: Apache-2.0

#include "skin/bindLaw.h"

#include "rowText.h"

#include <gtest/gtest.h>

using namespace host::skin;

TEST(bindLaw, measuresToTheNearestBoneOfAJoint)
{
    const BindInfluence joint = {{0, 0, 0}, {{4, 0, 0}, {0, 4, 0}, {0, 0, 0}}};
    EXPECT_DOUBLE_EQ(distanceToInfluence({2, 1, 0}, joint), 1);
    EXPECT_DOUBLE_EQ(distanceToInfluence({-3, -4, 0}, joint), 5);
    EXPECT_DOUBLE_EQ(distanceToInfluence({0, 6, 0}, joint), 2);
}

TEST(bindLaw, decidesTiesAndExtremes)
{
    const std::vector<BindInfluence> around = {
        {{2, 0, 0}, {}}, {{1, 0, 0}, {}}, {{0, 1, 0}, {}}, {{0, 0, 1}, {}}};
    const auto weights = [&](const Vec3 &vertex, unsigned maxInfluences) {
        return rowText(closestDistanceWeights(vertex, around, maxInfluences));
    };
    EXPECT_EQ(weights({0, 0, 0}, 2), "0 0.5 0.5 0");
    EXPECT_EQ(weights({0, 1, 0}, 3), "0 0 1 0") << "at the joint";
    EXPECT_EQ(weights({1e-160, 1, 0}, 3), "0 0 1 0") << "1 / distance^4 exceeds a double";
    EXPECT_EQ(weights({1e100, 0, 0}, 0), "0.25 0.25 0.25 0.25") << "it is below every double";
    EXPECT_EQ(rowText(closestDistanceWeights({0, 0, 0}, {around[3], around[3], around[2]}, 1)),
              "1 0 0");
    EXPECT_TRUE(closestDistanceWeights({0, 0, 0}, {}, 4).empty());
}
