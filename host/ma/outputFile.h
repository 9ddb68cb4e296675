// SPDX-License-Identifier: Apache-2.0
// A file that is replaced only once all of it has been written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ma/descriptor.h"
#include "ma/temporaryFile.h"

namespace host::ma
{

// Writes a new file and puts it in place of the old one in the end, on the disk too: whatever
// happens before, a crash or a power cut included, leaves the old file whole and nothing beside it.
// The new file has the old one's permissions, and its owner and group as far as the user may give
// them; other hard links keep the old text. A symbolic link stays, and what it leads to is
// replaced, or made if it is not there. All functions throw Error "PATH: reason".
//
// With kStandardStream as path the text goes to standard output as it comes.
class OutputFile
{
public:
    // Refuses folders, pipes, devices, and files that the user may not write.
    explicit OutputFile(std::string path);

    void write(std::string_view bytes);
    void commit();

private:
    [[noreturn]] void fail(int reason) const;
    [[noreturn]] void fail(const std::string &reason) const;
    std::string targetPath() const;
    void replaceAt(const std::string &target);
    int descriptor() const;

    std::string path_;                  // as the caller named it
    Descriptor folder_;                 // of the target
    std::string name_;                  // of the target in its folder
    std::optional<TemporaryFile> file_; // nothing for standard output
};

} // namespace host::ma
