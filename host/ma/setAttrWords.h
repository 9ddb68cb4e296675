// SPDX-License-Identifier: Apache-2.0
// The words of a setAttr statement, sorted.
#pragma once

#include <string_view>
#include <vector>

#include "mel/statement.h"

namespace host::ma
{

struct SetAttrWords {
    std::string_view plug;                // as it stands: ".wl[0:2].w"
    const mel::Argument *size = nullptr;  // the number behind -s
    std::vector<std::string_view> states; // -l, -k, -cb, -av with their values, each a word
    std::vector<const mel::Argument *> values;
    bool hasCapacity = false; // -ch

    bool hasNumbersOnly() const; // each value is an unquoted word
};

// Valid as long as the statement.
SetAttrWords sortSetAttr(const mel::Statement &statement);

} // namespace host::ma
