// SPDX-License-Identifier: Apache-2.0

#include "skin/writeRule.h"

#include "rowText.h"
#include "skin/distribution.h"

#include <gtest/gtest.h>

using namespace host::skin;

namespace
{

struct Case {
    const char *before; // "*": locked
    std::vector<Assignment> assignments;
    const char *after; // followed by W1, W2 for the warnings
    NormalizeMode mode = NormalizeMode::interactive;
    unsigned limit = 0; // maintainMaxInfluences is on unless 0
};

// Influences at the distances 1, 2, 4, 8 of the vertex.
std::vector<double> byDistance(const std::vector<std::size_t> &freeInfluences)
{
    const std::vector<BindInfluence> influences = {
        {{1, 0, 0}, {}}, {{0, 2, 0}, {}}, {{0, 0, 4}, {}}, {{8, 0, 0}, {}}};
    return sharesByDistance({0, 0, 0}, influences, freeInfluences);
}

void expectResults(const std::vector<Case> &cases)
{
    for (const Case &c : cases) {
        textRow row(c.before);
        const WriteSettings settings = {c.mode, true, c.limit > 0, c.limit};
        const WriteOutcome outcome =
            writeWeights(row.weights.data(), row.weights.size(), c.assignments.data(),
                         c.assignments.size(), row.locked, settings, byDistance);
        const std::string after = rowText(row.weights) + (outcome.couldNotSet ? " W1" : "") +
                                  (outcome.locksPreventedMax ? " W2" : "");
        EXPECT_EQ(after, c.after) << "from " << c.before;
    }
}

} // namespace

TEST(writeRule, scalesTheFreeWeightsAndRespectsLocks)
{
    expectResults({
        {"0.5 0.3 0.2 0", {{0, 0.8}}, "0.8 0.12 0.08 0"},
        {"0.5 0.3 0.2 0", {{0, 0.2}}, "0.2 0.48 0.32 0"},
        {"0.5 0.3 0.2 0", {{0, 0}}, "0 0.6 0.4 0"},
        {"0.5 0.3* 0.2 0", {{0, 0.2}}, "0.2 0.3 0.5 0"},
        {"0.5 0.3* 0.2 0", {{0, 0.9}}, "0.7 0.3 0 0 W1"},
        {"0.5 0.3* 0.2*", {{0, 0.2}}, "0.5 0.3 0.2 W1"},
        {"0.5 0.3* 0.2*", {{0, 0.8}}, "0.5 0.3 0.2 W1"},
        {"0.5* 0.3 0.2", {{0, 0.8}}, "0.8 0.12 0.08"},
        {"1 0 0", {{0, 0.4}}, "0.4 0.564706 0.035294"},
        {"1", {{0, 0.4}}, "1 W1"},
        {"0.4 0.3 0.2 0.1", {{0, 0.2}, {2, 0.6}}, "0.2 0.15 0.6 0.05"},
        {"0.4 0.3 0.2 0.1", {{0, 0.2}, {2, 0.8}}, "0.2 0 0.8 0"},
        {"0.4 0.3 0.2 0.1", {{0, 0.7}, {2, 0.6}}, "0.7 0 0.3 0 W1"},
        {"0.4 0.3 0.2 0.1",
         {{0, 0.5}, {1, 0.2}, {2, 0.1}, {3, 0.1}},
         "0.555556 0.222222 0.111111 0.111111 W1"},
        {"0.5 0.25 0.2", {{0, 0.4}}, "0.4 0.333333 0.266667"},
        {"0.5 0.3 0.2", {{0, 1.5}}, "1 0 0 W1"},
        {"0.5 0.3 0.2", {{0, -0.5}}, "0 0.6 0.4 W1"},
        {"0.5 0.3 0.2", {{0, 0.2}}, "0.2 0.3 0.2", NormalizeMode::none},
        {"0.5 0.3 0.2", {{0, 0.2}}, "0.2 0.3 0.2", NormalizeMode::post},
        {"0.4 0.3 0.2 0.1", {{3, 0}}, "0.444444 0.333333 0.222222 0"},
    });
}

TEST(writeRule, copesWithOddVertices)
{
    expectResults({
        {"0 0 0", {{0, 0.4}}, "0.4 0.564706 0.035294"},
        {"0 0* 0*", {{0, 0.4}}, "1 0 0 W1"},
        {"0.2 0.6* 0.6*", {{0, 0.4}}, "0 0.6 0.6 W1"},
        {"0.5 0.25 0.2", {{0, 0.5}, {1, 0.25}, {2, 0.2}}, "0.526316 0.263158 0.210526 W1"},
        {"0 0 0", {{0, 0}, {1, 0}, {2, 0}}, "0 0 0 W1"},
        {"0.5 0.6 -0.1", {{0, 0.4}}, "0.4 0.6 0"},
        {"0.5 0.3 0.2", {{0, 0.9}, {0, 0.2}}, "0.2 0.48 0.32"},
        {"0.5 nan 0.2", {{0, 0.2}}, "0.2 0 0.8"},
    });
}

TEST(writeRule, keepsTheLimitOfInfluences)
{
    const NormalizeMode on = NormalizeMode::interactive;
    expectResults({
        {"0.5 0.3 0.2 0", {{3, 0.2}}, "0.5 0.3 0 0.2", on, 3},
        {"0.5 0.2 0.3 0", {{3, 0.5}}, "0.3125 0 0.1875 0.5", on, 3},
        {"0.5 0.25 0.25 0", {{3, 0.4}}, "0.4 0.2 0 0.4", on, 3},
        {"1 0 0 0", {{0, 0.4}}, "0.4 0.6 0 0", on, 2},
        {"0.5 0.5 0 0", {{0, 0.4}}, "1 0 0 0 W1", on, 1},
        {"0.5* 0.3* 0.2 0", {{3, 0.1}}, "0.5 0.3 0.1 0.1 W2", on, 2},
        {"0.5* 0.3* 0.1 0.1", {{2, 0}}, "0.5 0.3 0 0.2 W2", on, 2},
        {"0.5* 0.3 0.2 0", {{3, 0.1}}, "0.5 0 0 0.5 W1", on, 2},
        {"0.5 0.3 0.2 0", {{3, 0.2}}, "0.4 0.24 0.16 0.2", on, 0},
        {"0 0 0 0", {{0, 0.4}, {1, 0.4}, {2, 0.2}}, "0.4 0.4 0.2 0", on, 2},
    });
}

// On a skin cluster with one joint Maya warns exactly from here on.
TEST(writeRule, warnsFromMayasThresholdOn)
{
    const std::vector<std::pair<double, bool>> warnings = {{0.9999999999000000, false},
                                                           {0.9999999998999999, true},
                                                           {1.0000000000999998, false},
                                                           {1.0000000001, true}};
    for (const auto &[value, warns] : warnings) {
        double weight = 1.0;
        const Assignment assignment = {0, value};
        const WriteOutcome outcome = writeWeights(&weight, 1, &assignment, 1, {}, {}, {});
        EXPECT_EQ(outcome.couldNotSet, warns) << value;
        EXPECT_EQ(weight, warns ? 1.0 : value);
    }
}

TEST(writeRule, storesAFullRowBitByBit)
{
    const std::vector<double> values = {0.1, 0.2, 0.3, 0.4 - 6e-11, 1e-17};
    std::vector<double> weights = {0.5, 0.5, 0, 0, 0};
    std::vector<Assignment> assignments;
    for (std::size_t i = 0; i < values.size(); ++i)
        assignments.push_back({i, values[i]});
    const std::vector<bool> locked = {true, false, true};
    EXPECT_FALSE(
        writeWeights(weights.data(), 5, assignments.data(), 5, locked, {}, {}).couldNotSet);
    EXPECT_EQ(weights, values);
}
