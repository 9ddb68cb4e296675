// SPDX-License-Identifier: Apache-2.0
// What a Maya ASCII file says, as a table of single facts, to compare two files with each other.
//
// Reads the text on its own, with none of the host's code: the order of statements, line breaks,
// ranges, chunks, the forms of weights and of numbers do not matter, everything else does.
#pragma once

#include <map>
#include <string>
#include <vector>

struct maText {
    // "node a|b" -> "joint", "a|b .t" -> "1 2 3", "a|b .wl[3].w[0]" -> "0.5",
    // "a.s -> a|b.is" -> "1", "requires maya 2017" -> "1" (how often) ...
    std::map<std::string, std::string> facts;

    explicit maText(const std::string &path);
};

// One line per difference: "- fact = value" only in the first, "+ ..." only in the second,
// "~ fact = value | other value". Numbers are equal when they are the same double, or the same
// float where the attribute is one of single precision.
std::vector<std::string> differences(const maText &first, const maText &second);
