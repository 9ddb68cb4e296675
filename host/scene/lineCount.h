// SPDX-License-Identifier: Apache-2.0
// How many lines end in a text.
#pragma once

#include <cstring>
#include <string_view>

namespace host
{

// Files are read with it: memchr looks at many characters at once, std::count at each.
inline std::size_t lineEndsIn(std::string_view text)
{
    std::size_t count = 0;
    const char *here = text.data();
    const char *const end = here + text.size();
    const auto next = [end](const char *from) {
        return from < end ? static_cast<const char *>(
                                std::memchr(from, '\n', static_cast<std::size_t>(end - from)))
                          : nullptr;
    };
    while ((here = next(here)) != nullptr) {
        ++count;
        ++here;
    }
    return count;
}

} // namespace host
