// SPDX-License-Identifier: Apache-2.0
//
// The write rule against a naive twin that follows its definition step by step with sets.

#include "skin/writeRule.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace host::skin;

namespace
{

std::vector<double> lowerIndexMore(const std::vector<std::size_t> &freeInfluences)
{
    std::vector<double> shares;
    double total = 0;
    for (const std::size_t influence : freeInfluences)
        total += 1.0 / double(influence + 1);
    for (const std::size_t influence : freeInfluences)
        shares.push_back(1.0 / double(influence + 1) / total);
    return shares;
}

struct Situation {
    std::vector<double> weights;
    std::vector<Assignment> assignments; // distinct influences
    std::vector<bool> locked;
};

Situation randomSituation(std::mt19937 &random)
{
    std::uniform_real_distribution<double> unit(0, 1);
    Situation s;
    const std::size_t count = 1 + random() % 8;
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        s.weights.push_back(random() % 3 ? unit(random) : 0.0);
        s.locked.push_back(random() % 4 == 0);
        sum += s.weights.back();
    }
    for (double &weight : s.weights)
        weight = sum > 0 && random() % 20 ? weight / sum : weight;
    std::set<std::size_t> chosen;
    for (std::size_t n = 1 + random() % 3; n > 0; --n)
        chosen.insert(random() % count);
    for (const std::size_t i : chosen)
        s.assignments.push_back({i, random() % 4 ? unit(random) * 1.2 - 0.1 : s.weights[i]});
    return s;
}

double sumOver(const std::set<std::size_t> &influences, const std::vector<double> &weights)
{
    double sum = 0;
    for (const std::size_t i : influences)
        sum += weights[i];
    return sum;
}

// Returns whether it warns.
bool naiveWrite(Situation &s)
{
    std::set<std::size_t> assigned, locked, free;
    for (const Assignment &a : s.assignments)
        assigned.insert(a.influence);
    for (std::size_t i = 0; i < s.weights.size(); ++i) {
        if (!assigned.count(i))
            (s.locked[i] ? locked : free).insert(i);
    }
    const double room = std::max(0.0, 1.0 - sumOver(locked, s.weights));
    double rest = room;
    bool warns = false;
    for (const auto &[influence, value] : s.assignments) {
        double stored = value;
        if (value < 0)
            stored = 0;
        else if (value >= rest + 1e-10)
            stored = std::max(0.0, rest);
        warns = warns || std::fabs(stored - value) >= 1e-10;
        s.weights[influence] = stored;
        rest -= stored;
    }
    const double freeSum = sumOver(free, s.weights);
    const double assignedSum = sumOver(assigned, s.weights);
    if (rest < 1e-10) {
        for (const std::size_t i : free)
            s.weights[i] = 0;
    } else if (freeSum > 0) {
        for (const std::size_t i : free)
            s.weights[i] *= rest / freeSum;
    } else if (!free.empty()) {
        const std::vector<double> shares = lowerIndexMore({free.begin(), free.end()});
        std::size_t next = 0;
        for (const std::size_t i : free)
            s.weights[i] = rest * shares[next++];
    } else if (std::fabs(assignedSum - room) >= 1e-10) {
        warns = true;
        for (const std::size_t i : assigned) {
            if (assigned.size() == 1)
                s.weights[i] = room;
            else if (assignedSum > 0)
                s.weights[i] *= room / assignedSum;
        }
    }
    return warns;
}

} // namespace

TEST(writeRuleAtRandom, agreesWithItsDefinition)
{
    std::mt19937 random(20150417);
    for (int round = 0; round < 20000; ++round) {
        const Situation before = randomSituation(random);
        Situation expected = before;
        const bool warns = naiveWrite(expected);
        Situation actual = before;
        const WriteOutcome outcome =
            writeWeights(actual.weights.data(), actual.weights.size(), actual.assignments.data(),
                         actual.assignments.size(), actual.locked, {}, lowerIndexMore);
        ASSERT_EQ(outcome.couldNotSet, warns) << "round " << round;
        for (std::size_t i = 0; i < actual.weights.size(); ++i)
            ASSERT_NEAR(actual.weights[i], expected.weights[i], 1e-14) << "round " << round;
    }
}

// One assignment without locks looks at the weights in use only, with the same bits as looking at
// all: the list of locks says the same in both calls.
TEST(writeRuleAtRandom, doesNotDependOnHowMuchItLooksAt)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(0, 1);
    // 1e-320: there, but too small to be scaled.
    const double steps[] = {.1, .1, .1, .1, .1, .1, .1, -.1, 1e-320, 1e-320};
    const double values[] = {0.0, 1.0, 1e-11, 0.5, -0.25, 1.5};
    for (int round = 0; round < 20000; ++round) {
        std::vector<double> all(1 + random() % 100, 0.0);
        for (std::size_t n = random() % (random() % 8 ? 9 : 60); n > 0; --n)
            all[random() % all.size()] = steps[random() % 10] * unit(random);
        std::vector<double> inUse = all;
        const Assignment assignment = {random() % all.size(), values[random() % 6]};
        WriteSettings settings;
        settings.maintainMaxInfluences = random() % 3 == 0;
        settings.maxInfluences = unsigned(random() % 5);
        const std::vector<bool> noneLocked(all.size(), false);
        const WriteOutcome expected = writeWeights(all.data(), all.size(), &assignment, 1,
                                                   noneLocked, settings, lowerIndexMore);
        const WriteOutcome outcome =
            writeWeights(inUse.data(), inUse.size(), &assignment, 1, {}, settings, lowerIndexMore);
        ASSERT_EQ(inUse, all) << "round " << round;
        ASSERT_EQ(outcome.couldNotSet, expected.couldNotSet) << "round " << round;
    }
}
