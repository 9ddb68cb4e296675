// SPDX-License-Identifier: Apache-2.0
// The warnings of one file, grouped: a rig can have thousands of connections to what is missing.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "scene/output.h"

namespace host::ma
{

class FileWarnings
{
public:
    static constexpr std::size_t kShownLines = 20;

    FileWarnings(Output &output, std::string path) : output_(output), path_(std::move(path)) {}

    // Takes in what is to be said about the statement in that line. Texts of one command that are
    // equal but for the names and numbers in them are one kind.
    void add(const std::string &command, std::size_t line, const std::string &text);
    // The same for something about the whole file.
    void addForFile(const std::string &text);
    // Shows a line for each kind, in the order in which they came: "PATH line N: TEXT", with the
    // first line and text and how many there were. Beyond kShownLines the rest is one line.
    void show();

private:
    struct Kind {
        std::string text; // of the first, with its line
        std::string command;
        std::size_t count = 0;
    };
    Output &output_;
    std::string path_;
    std::vector<Kind> kinds_;
    std::map<std::string, std::size_t> places_; // in kinds_
};

} // namespace host::ma
