// SPDX-License-Identifier: Apache-2.0
//
// Rows of weights as text, so that a test shows before and after as a rigger reads them: "0.5 0.3
// 0.2". Influences whose weight is followed by "*" are locked.

#pragma once

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

struct textRow {
    std::vector<double> weights;
    std::vector<bool> locked;

    textRow(const char *text)
    {
        std::istringstream words(text);
        for (std::string word; words >> word;) {
            locked.push_back(word.back() == '*');
            weights.push_back(std::stod(word));
        }
    }
};

// Six decimal places, without trailing zeros.
inline std::string rowText(const std::vector<double> &weights)
{
    std::string text;
    for (const double weight : weights) {
        char digits[32];
        std::snprintf(digits, sizeof digits, "%.6f", weight);
        std::string word = digits;
        word.erase(word.find_last_not_of('0') + 1);
        if (word.back() == '.')
            word.pop_back();
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}
