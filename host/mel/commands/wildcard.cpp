// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/wildcard.h"

namespace host::mel
{

// On a mismatch only the last star takes one character more: never slower than length by length.
bool matchesWildcard(std::string_view pattern, std::string_view text)
{
    std::size_t at = 0;
    std::size_t star = std::string_view::npos;
    std::size_t afterStar = 0;
    for (std::size_t i = 0; i < text.size();) {
        if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == text[i]) &&
            pattern[at] != '*') {
            ++at;
            ++i;
        } else if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            afterStar = i;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            i = ++afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

} // namespace host::mel
