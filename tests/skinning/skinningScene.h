// SPDX-License-Identifier: Apache-2.0
// A running Maya with an empty scene, and what its commands answer, as text.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>

#include "mel/melRecorder.h"

class skinningScene : public testing::Test, public melRecorder
{
protected:
    // Runs commands that must succeed.
    void make(const std::string &commands)
    {
        const std::string shown = run(commands);
        EXPECT_TRUE(status) << commands << ": " << shown;
    }

    // The strings of a result, a blank between them; "failed" if there is no such result.
    static std::string names(const std::string &command)
    {
        MStringArray result;
        if (!MGlobal::executeCommand(command.c_str(), result))
            return "failed";
        std::string text;
        for (unsigned i = 0; i < result.length(); ++i)
            text += (i ? " " : "") + std::string(result[i].asChar());
        return text;
    }

    static std::vector<double> numbers(const std::string &command)
    {
        MDoubleArray result;
        EXPECT_TRUE(MGlobal::executeCommand(command.c_str(), result)) << command;
        std::vector<double> values;
        for (unsigned i = 0; i < result.length(); ++i)
            values.push_back(result[i]);
        return values;
    }

    static int number(const std::string &command)
    {
        int result = -1;
        EXPECT_TRUE(MGlobal::executeCommand(command.c_str(), result)) << command;
        return result;
    }

    // The weights of one vertex in the order of the influences: "0.5 0.25 0.25".
    static std::string weights(const std::string &vertex,
                               const std::string &cluster = "skinCluster1")
    {
        std::string text;
        for (const double weight : numbers("skinPercent -q -v " + cluster + " " + vertex)) {
            char digits[32];
            std::snprintf(digits, sizeof digits, "%s%.6g", text.empty() ? "" : " ", weight);
            text += digits;
        }
        return text;
    }

    // "error text" of a command that must fail, without place.
    std::string refusal(const std::string &command)
    {
        const std::string shown = run(command);
        EXPECT_FALSE(status) << command;
        const std::string place = "Error: line 1: ";
        return shown.rfind(place, 0) == 0 ? shown.substr(place.size()) : shown;
    }
};
