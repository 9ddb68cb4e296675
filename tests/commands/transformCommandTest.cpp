// SPDX-License-Identifier: Apache-2.0
// Placing: what parent, xform, move and rotate make of a matrix must give that matrix again.

#include <random>

#include "support/mayaSession.h"

namespace
{

void expectNear(const std::vector<double> &actual, const std::vector<double> &expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], 1e-9) << "number " << i;
}

std::string text(const std::vector<double> &values)
{
    std::string all;
    for (const double value : values)
        all += " " + std::to_string(value);
    return all;
}

// Random poses with a fixed seed: a parent that turns and scales evenly, a child with everything
// that has a say in its matrix.
class pose : public MayaSession, public testing::WithParamInterface<int>
{
protected:
    pose() : random_(unsigned(GetParam()) + 1)
    {
        const std::string order = std::to_string(GetParam() % 6);
        const std::string type = GetParam() < 6 ? "transform" : "joint";
        mel("createNode transform -n up; createNode " + type + " -n low; setAttr low.ro " + order);
        place("up", {"t", "r"});
        mel("setAttr up.s 2 2 2");
        place("low", {"t", "r", "ra"});
        if (type == "joint")
            place("low", {"jo"});
        else
            mel("setAttr low.s 1 2 3; setAttr low.sh .1 .2 .3; xform -piv 1 2 3 low");
    }

    void place(const std::string &node, const std::vector<const char *> &attributes)
    {
        std::uniform_real_distribution<double> angle(-170, 170);
        for (const char *attribute : attributes)
            mel("setAttr " + node + "." + attribute +
                text({angle(random_), angle(random_), angle(random_)}));
    }

    static std::vector<double> worldMatrix(const char *node)
    {
        return melNumbers(std::string("xform -q -ws -m ") + node);
    }

private:
    std::mt19937 random_;
};

TEST_P(pose, staysWhereItIsBelowAnotherParent)
{
    const std::vector<double> before = worldMatrix("low");
    mel("parent low up");
    expectNear(worldMatrix("low"), before);
    mel("parent -w low");
    expectNear(worldMatrix("low"), before);
}

// Where the middle one of the three angles is close to 90 degrees, the other two are hard to tell.
TEST_P(pose, staysWhereItIsNearThePole)
{
    constexpr const char *kMiddle[] = {"ry", "rz", "rx", "rz", "rx", "ry"}; // by rotate order
    mel(std::string("setAttr low.") + kMiddle[GetParam() % 6] + " 89.999999");
    const std::vector<double> before = worldMatrix("low");
    mel("parent low up");
    expectNear(worldMatrix("low"), before);
}

TEST_P(pose, isFoundForAMatrix)
{
    mel("createNode transform -n model");
    place("model", {"t", "r"});
    const std::vector<double> wanted = worldMatrix("model");
    mel("parent -r low up; xform -ws -m" + text(wanted) + " low");
    const std::vector<double> found = worldMatrix("low");
    for (std::size_t i = 0; i < wanted.size(); ++i)
        EXPECT_NEAR(found[i], wanted[i], 1e-4); // the command's text has six digits
}

TEST_P(pose, turnsAndMovesInTheWorld)
{
    mel("parent -r low up; xform -ws -ro 10 20 30 low; move 1 2 3 low");
    expectNear(melNumbers("xform -q -ws -ro low"), {10, 20, 30});
    expectNear(melNumbers("xform -q -ws -t low"), {1, 2, 3});
    mel("move -r 1 1 1 low; move -x 7 low");
    expectNear(melNumbers("xform -q -ws -t low"), {7, 3, 4});
    const std::vector<double> before = worldMatrix("low");
    mel("rotate -r -ws 0 90 0 low; rotate -r -ws 0 -90 0 low; rotate -r 5 6 7 low");
    EXPECT_GT(std::abs(worldMatrix("low")[4] - before[4]), 1e-6);
    mel("xform -ws -ro 10 20 30 low");
    expectNear(worldMatrix("low"), before);
}

INSTANTIATE_TEST_SUITE_P(rotateOrders, pose, testing::Range(0, 12));

} // namespace
