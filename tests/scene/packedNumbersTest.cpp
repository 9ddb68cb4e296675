// SPDX-License-Identifier: Apache-2.0
//
// The runs of numbers against a naive twin: one map from index to tuple.

#include "scene/packedNumbers.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

using host::PackedNumbers;

namespace
{

using Twin = std::map<int, std::vector<double>>;

// Runs that neither overlap nor touch: neighbours are always one run.
void expectSeparateRuns(const PackedNumbers &numbers)
{
    long freeFrom = -1;
    for (const auto &run : numbers.runs()) {
        EXPECT_GT(run.first, freeFrom);
        EXPECT_FALSE(run.second.empty());
        freeFrom = long(run.first) + long(run.second.size() / numbers.tupleSize());
    }
}

void expectSame(const PackedNumbers &numbers, const Twin &twin)
{
    std::vector<int> indices;
    for (const auto &element : twin) {
        indices.push_back(element.first);
        const double *found = numbers.find(element.first);
        ASSERT_NE(found, nullptr) << element.first;
        EXPECT_EQ(std::vector<double>(found, found + numbers.tupleSize()), element.second);
    }
    EXPECT_EQ(numbers.indices(), indices);
    EXPECT_EQ(numbers.elementCount(), indices.size());
    EXPECT_EQ(numbers.highestIndex(), indices.empty() ? -1 : indices.back());
    expectSeparateRuns(numbers);
}

void changeBoth(PackedNumbers &numbers, Twin &twin, std::mt19937 &random)
{
    const unsigned tuple = numbers.tupleSize();
    const int index = int(random() % 40);
    switch (random() % 4) {
    case 0:
        EXPECT_EQ(numbers.erase(index), twin.erase(index) > 0);
        break;
    case 1:
        *numbers.findOrAdd(index, 7.0) += 1.0;
        twin.emplace(index, std::vector<double>(tuple, 7.0)).first->second[0] += 1.0;
        break;
    default:
        std::vector<double> run((1 + random() % 8) * tuple);
        for (double &number : run)
            number = double(random() % 100);
        numbers.setRun(index, run.data(), run.size() / tuple);
        for (std::size_t i = 0; i < run.size() / tuple; ++i)
            twin[index + int(i)].assign(run.begin() + long(i * tuple),
                                        run.begin() + long((i + 1) * tuple));
    }
}

} // namespace

TEST(packedNumbers, holdWhatASparseMapHolds)
{
    for (const unsigned tupleSize : {1u, 3u}) {
        const unsigned seed = 20260u + tupleSize;
        std::mt19937 random(seed);
        PackedNumbers numbers(tupleSize);
        Twin twin;
        for (int step = 0; step < 3000; ++step) {
            changeBoth(numbers, twin, random);
            expectSame(numbers, twin);
            if (HasFailure())
                FAIL() << "seed " << seed << ", step " << step;
        }
    }
}

TEST(packedNumbers, takeTheHighestIndexThereIs)
{
    PackedNumbers numbers;
    const int highest = std::numeric_limits<int>::max();
    *numbers.findOrAdd(highest - 1) = 1.0;
    *numbers.findOrAdd(highest) = 2.0;
    EXPECT_EQ(numbers.highestIndex(), highest);
    EXPECT_EQ(*numbers.find(highest), 2.0);
    EXPECT_EQ(*numbers.find(highest - 1), 1.0);
    EXPECT_TRUE(numbers.erase(highest));
    EXPECT_EQ(numbers.indices(), std::vector<int>{highest - 1});
}
