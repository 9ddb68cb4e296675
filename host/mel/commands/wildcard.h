// SPDX-License-Identifier: Apache-2.0
// The patterns of MEL: * for any run of characters, ? for any one.
#pragma once

#include <string_view>

namespace host::mel
{

bool matchesWildcard(std::string_view pattern, std::string_view text);
inline bool hasWildcard(std::string_view text)
{
    return text.find_first_of("*?") != std::string_view::npos;
}

} // namespace host::mel
