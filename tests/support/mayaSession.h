// SPDX-License-Identifier: Apache-2.0
// A running Maya for tests: each test gets an empty scene, MEL, skins, and what Maya shows
// meanwhile.
//
// Only Maya's own API, MEL and Qt are used, nothing that only the host has: the same tests can be
// linked to a real Maya.
#pragma once

#include <map>
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
    // The weights of a vertex, or the mean of several: "0.5 0.25 0.25".
    static std::string melWeights(const std::string &vertices,
                                  const std::string &skinCluster = "skinCluster1");
    // Where events come late, they come now: before a user goes on. mel() ends with it.
    static void becomeIdle();
    // Runs MEL that must fail and gives the errors that it shows, a line each; that they are in
    // line 1 goes without saying.
    std::string melError(const std::string &script);

    // A plane named `mesh` with a vertex per line of `rows`, an even number from 4 on, bound to
    // `joints` (made if they are not there) by a skin cluster MESHSkin that holds exactly these
    // weights, a column per joint.
    static void makeSkin(const std::string &mesh, const std::vector<std::string> &joints,
                         const std::vector<std::vector<double>> &rows);
    // What MESHSkin holds of a vertex, and as text: "0.5 0.3 0.2". Of all: "0.5 0.3 0.2; 0 0 1".
    static std::vector<double> exactWeights(int vertex, const std::string &mesh = "body");
    static std::string weights(int vertex, const std::string &mesh = "body");
    static std::string allWeights(const std::string &mesh = "body");

    // What was shown since the last call of its kind, a line each, without Maya's frame.
    std::string takeErrors() { return take(MCommandMessage::kError); }
    std::string takeWarnings() { return take(MCommandMessage::kWarning); }
    std::string takeInfos() { return take(MCommandMessage::kInfo); }
    std::string takeCommands() { return take(MCommandMessage::kHistory); }

private:
    static void keepMessage(const MString &message, MCommandMessage::MessageType type, void *self);
    std::string take(MCommandMessage::MessageType type);

    std::map<MCommandMessage::MessageType, std::string> shown_;
    MCallbackId callback_;
};
