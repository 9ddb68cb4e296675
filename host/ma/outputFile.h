// SPDX-License-Identifier: Apache-2.0
// A file that is replaced only once all of it has been written.
#pragma once

#include <string>
#include <string_view>

namespace host::ma
{

// Writes beside the file, under a name of its own, and renames in the end. Until commit() the old
// file is untouched; without commit() nothing is left behind. All functions throw Error
// "PATH: reason".
class OutputFile
{
public:
    explicit OutputFile(std::string path);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    void write(std::string_view bytes);
    void commit();

private:
    [[noreturn]] void fail(int reason) const;
    void takeOverMode();

    std::string path_;      // as the caller named it
    std::string target_;    // what a symbolic link leads to
    std::string temporary_; // empty once it is gone
    int descriptor_ = -1;
};

} // namespace host::ma
