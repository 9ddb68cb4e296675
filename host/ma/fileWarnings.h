// SPDX-License-Identifier: Apache-2.0
// The warnings of one file: with its name and the line, and no more than a few of a kind.
#pragma once

#include <map>
#include <string>

#include "scene/output.h"

namespace host::ma
{

class FileWarnings
{
public:
    static constexpr unsigned kShownPerKind = 20;

    FileWarnings(Output &output, std::string path) : output_(output), path_(std::move(path)) {}

    // Shows "PATH line N: TEXT"; beyond kShownPerKind of `kind`, a word such as "connectAttr", it
    // is only counted.
    void add(const std::string &kind, std::size_t line, const std::string &text);
    // The same for something about the whole file.
    void addForFile(const std::string &text);
    // Says how many were only counted.
    void finish();

private:
    Output &output_;
    std::string path_;
    std::map<std::string, std::size_t> counts_;
};

} // namespace host::ma
