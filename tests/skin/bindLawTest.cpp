// SPDX-License-Identifier: Apache-2.0
//
// Expected numbers with 17 digits are those of scenes that Maya wrote.

#include "skin/bindLaw.h"

#include "rowText.h"

#include <gtest/gtest.h>

using namespace host::skin;

namespace
{

// Joints at x = -2 .. 2, each the parent of the next.
std::vector<BindInfluence> chainOfFive()
{
    std::vector<BindInfluence> joints;
    for (double x = -2; x <= 2; ++x)
        joints.push_back({{x, 0, 0}, {}});
    for (std::size_t i = 0; i + 1 < joints.size(); ++i)
        joints[i].childJoints = {joints[i + 1].position};
    return joints;
}

void expectWeights(const std::vector<double> &actual, const std::vector<double> &expected,
                   double tolerance)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "influence " << i;
}

} // namespace

TEST(bindLaw, givesMayasWeights)
{
    expectWeights(
        closestDistanceWeights({-2.5, -0.5, 0.5}, chainOfFive(), 4),
        {.91727462321159092, .068227038090118319, .011324378064340626, .0031739606339501398, 0},
        1e-15);
    const std::vector<BindInfluence> unparented = {
        {{0, 0, 0}, {}, 10}, {{0, 1, 0}, {}, 10}, {{0, 2, 0}, {}, 10}};
    expectWeights(closestDistanceWeights({.5, 1, .5}, unparented, 5),
                  {.00408163, .99183673, .00408163}, 5e-9);
}

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
