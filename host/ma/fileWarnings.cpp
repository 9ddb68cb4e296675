// SPDX-License-Identifier: Apache-2.0
#include "ma/fileWarnings.h"

namespace host::ma
{

void FileWarnings::add(const std::string &kind, std::size_t line, const std::string &text)
{
    if (counts_[kind]++ < kShownPerKind)
        output_.warning(path_ + " line " + std::to_string(line) + ": " + text);
}

void FileWarnings::addForFile(const std::string &text)
{
    output_.warning(path_ + ": " + text);
}

void FileWarnings::finish()
{
    for (const auto &[kind, count] : counts_) {
        if (count > kShownPerKind)
            addForFile(std::to_string(count - kShownPerKind) + " more warnings about " + kind);
    }
}

} // namespace host::ma
