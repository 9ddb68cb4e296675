// SPDX-License-Identifier: Apache-2.0
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MPlug.h>

#include <limits>

#include "api/boundBody.h"

namespace
{

MIntArray indices(std::initializer_list<int> numbers)
{
    return MIntArray(numbers.begin(), static_cast<unsigned>(numbers.size()));
}

std::vector<double> list(const MDoubleArray &array)
{
    std::vector<double> numbers(array.length());
    array.get(numbers.data());
    return numbers;
}

class weights : public BoundBody
{
protected:
    // Vertices 0 and 1 hold .5 .3 .2.
    weights()
    {
        MIntArray all = indices({0, 1, 2});
        const double row[] = {0.5, 0.3, 0.2};
        MDoubleArray values(row, 3);
        EXPECT_TRUE(skin_.setWeights(shape_, vertices({0, 1}), all, values));
    }
    std::vector<double> of(int vertex)
    {
        MDoubleArray values;
        unsigned int count = 0;
        EXPECT_TRUE(skin_.getWeights(shape_, vertices({vertex}), values, count));
        return list(values);
    }
};

} // namespace

TEST_F(weights, readAllSomeOrOneInfluence)
{
    MDoubleArray values(9, 9.0);
    unsigned int count = 0;
    EXPECT_TRUE(skin_.getWeights(shape_, vertices({1, 0}), values, count));
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(list(values), (std::vector<double>{0.5, 0.3, 0.2, 0.5, 0.3, 0.2}));
    MIntArray columns = indices({2, 0});
    EXPECT_TRUE(skin_.getWeights(shape_, vertices({0, 1}), columns, values));
    EXPECT_EQ(list(values), (std::vector<double>{0.2, 0.5, 0.2, 0.5}));
    EXPECT_TRUE(skin_.getWeights(shape_, vertices({0}), 1u, values));
    EXPECT_EQ(list(values), (std::vector<double>{0.3}));
    EXPECT_TRUE(skin_.getWeights(path("body"), vertices({0}), 1u, values))
        << "its transform will do";
}

TEST_F(weights, writeNormalisesTheOthersAndGivesAllOldOnes)
{
    MDoubleArray old;
    EXPECT_TRUE(skin_.setWeights(shape_, vertices({0, 1}), 0u, 0.8, true, &old));
    const std::vector<double> after = of(0);
    EXPECT_EQ(after[0], 0.8);
    EXPECT_NEAR(after[1], 0.12, 1e-12);
    EXPECT_EQ(list(old), (std::vector<double>{0.5, 0.3, 0.2, 0.5, 0.3, 0.2}));
    MIntArray one = indices({2});
    MDoubleArray value(1, 0.3);
    EXPECT_TRUE(skin_.setWeights(shape_, vertices({1}), one, value, false, &old));
    EXPECT_EQ(old.length(), 3u) << "every influence, not only the one that is set";
    EXPECT_EQ(of(1)[2], 0.3);
}

TEST_F(weights, replayOfOldValuesIsExact)
{
    MDoubleArray old;
    const std::vector<double> before = of(4);
    skin_.setWeights(shape_, vertices({4}), 0u, 0.123456789, true, &old);
    EXPECT_NE(of(4), before);
    MIntArray all = indices({0, 1, 2});
    skin_.setWeights(shape_, vertices({4}), all, old, true);
    EXPECT_EQ(of(4), before);
}

TEST_F(weights, refuseWhatDoesNotFitAndChangeNothing)
{
    MIntArray all = indices({0, 1, 2});
    MIntArray beyond = indices({0, 3});
    MDoubleArray two(2, 0.1);
    MDoubleArray notANumber(3, std::numeric_limits<double>::quiet_NaN());
    const MObject vertex = vertices({0});
    MFnSingleIndexedComponent faces;
    const MObject face = faces.create(MFn::kMeshPolygonComponent);
    EXPECT_EQ(skin_.setWeights(shape_, vertex, all, two), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, vertex, beyond, two), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, vertex, all, notANumber), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, vertex, 3u, 0.5), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, MObject::kNullObj, 0u, 0.5), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, face, 0u, 0.5), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(shape_, vertices({20}), 0u, 0.5), MStatus::kInvalidParameter);
    EXPECT_EQ(skin_.setWeights(path("joint1"), vertex, 0u, 0.5), MStatus::kFailure);
    EXPECT_EQ(of(0), (std::vector<double>{0.5, 0.3, 0.2}));
}

TEST_F(weights, staysOffTheUndoQueue)
{
    const std::string before = melString("undoInfo -q");
    skin_.setWeights(shape_, vertices({0}), 0u, 0.9);
    EXPECT_EQ(melString("undoInfo -q"), before);
}

TEST_F(weights, warnOncePerCall)
{
    for (const char *joint : {"joint2", "joint3"})
        mel(std::string("setAttr ") + joint + ".liw 1");
    takeWarnings();
    skin_.setWeights(shape_, vertices({0, 1, 2, 3}), 0u, 0.1);
    EXPECT_EQ(takeWarnings(),
              "Some weights could not be set to the specified value. The weight total "
              "would have exceeded 1.0.");
    EXPECT_EQ(of(0), (std::vector<double>{0.5, 0.3, 0.2}));
}

TEST_F(weights, tellPhysicalFromLogicalIndices)
{
    mel("skinCluster -e -ri joint2 skinCluster1");
    MDagPathArray paths;
    EXPECT_EQ(skin_.influenceObjects(paths), 2u);
    EXPECT_TRUE(paths[1].partialPathName() == "joint3");
    EXPECT_EQ(skin_.indexForInfluenceObject(paths[1]), 2u);
    MDoubleArray values;
    EXPECT_TRUE(skin_.getWeights(shape_, vertices({0}), 1u, values));
    EXPECT_GT(values[0], 0.2);
    MStatus status;
    skin_.indexForInfluenceObject(path("joint2"), &status);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
}
