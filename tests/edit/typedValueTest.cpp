// SPDX-License-Identifier: Apache-2.0
#include "model/typedValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(typedValue, isAWeightOrAChangeOfIt)
{
    const struct {
        const char *text;
        double weight; // of the cell
        double target;
    } cases[] = {
        {"0.5", 0.2, 0.5},     {"1", 0.2, 1.0},        {"0", 0.2, 0.0},
        {" .25 ", 0.2, 0.25},  {"1e-2", 0.2, 0.01},    {"-0", 0.2, 0.0},
        {"abc", 0.2, 0.0},     {"", 0.2, 0.0},         {"0,5", 0.2, 0.0},
        {"=5", 0.2, 0.0},      {"0.=5", 0.2, 0.0},     {"+=", 0.2, 0.0},
        {"==5", 0.2, 0.0},     {" +=5", 0.2, 0.0},     {"+=0.5", 0.7, 1.0},
        {"+=0.25", 0.5, 0.75}, {"+=-0.25", 0.5, 0.25}, {"-=0.25", 0.5, 0.25},
        {"-=2", 0.5, 0.0},     {"*=0.5", 0.5, 0.25},   {"*=-1", 0.5, 0.0},
        {"/=2", 0.5, 0.25},    {"/=0", 0.5, 1.0},      {"/=0", 0.0, 0.0},
        {"+=abc", 0.5, 0.5},   {"*=abc", 0.5, 0.0},    {"+=nan", 0.5, 0.5},
        {"-=1e400", 0.5, 0.0}, {"*=1e400", 0.0, 0.0},  {"+==5", 0.5, 0.5},
        {"/=1e400", 0.5, 0.0}, {"+= 0.25", 0.5, 0.75},
    };
    for (const auto &c : cases) {
        const typedValue typed = parseTypedValue(QLatin1String(c.text));
        ASSERT_TRUE(typed.isAcceptable) << c.text;
        const double target = targetWeight(typed, c.weight);
        EXPECT_DOUBLE_EQ(target, c.target) << c.text;
        EXPECT_FALSE(std::signbit(target)) << c.text;
    }
}

TEST(typedValue, isRefusedOutOfRangeAndWithAnUnknownOperator)
{
    for (const char *text : {"1.0001", "-0.5", "2", "nan", "inf", "-inf", "1e400", "-1e400",
                             "%=0.2", "0=0.2", " =0.2", "a=b"})
        EXPECT_FALSE(parseTypedValue(QLatin1String(text)).isAcceptable) << text;
    EXPECT_FALSE(parseTypedValue(QString(100000, QLatin1Char('9'))).isAcceptable);
    EXPECT_TRUE(parseTypedValue(QString(100000, QLatin1Char('='))).isAcceptable);
}
