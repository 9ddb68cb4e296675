// SPDX-License-Identifier: Apache-2.0
// A running Maya for tests: each test gets an empty scene, MEL, and what Maya shows meanwhile.
//
// Only Maya's own API, MEL and Qt are used, nothing that only the host has: the same tests can be
// linked to a real Maya.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <maya/MCommandMessage.h>

// The main function of a test program: makes the QApplication, starts Maya once, runs all tests.
int runMayaTests(int argumentCount, char **arguments);

class MayaSession : public testing::Test
{
protected:
    MayaSession(); // with a new scene
    ~MayaSession() override;

    // Runs MEL that must succeed, on the undo queue as if it was typed.
    static void mel(const std::string &script);
    // The same for a result: a string (numbers as text), numbers, or strings with blanks between.
    static std::string melString(const std::string &script);
    static std::vector<double> melNumbers(const std::string &script);
    static std::string melStrings(const std::string &script);
    // Runs MEL that must fail and gives the errors that it shows, a line each.
    std::string melError(const std::string &script);

    // The errors, or warnings, shown since the last call: a line each, without Maya's frame.
    std::string takeErrors();
    std::string takeWarnings();

private:
    static void keepMessage(const MString &message, MCommandMessage::MessageType type, void *self);

    std::string errors_;
    std::string warnings_;
    MCallbackId callback_;
};
