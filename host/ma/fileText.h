// SPDX-License-Identifier: Apache-2.0
// A Maya ASCII file as UTF-8 text that is fetched piece by piece.
//
// Opening it looks at the header: "//Maya ASCII 2017 scene", and "//Codeset: 1252" a few lines
// below. Only what the caller keeps of the text is in memory, so a huge file costs no more than its
// longest statement. Standard input is read whole: its size must be known, as that of a file is.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ma/textDecoder.h"

namespace host::ma
{

// Throws Error "PATH line N: TEXT", how everything that is wrong with a file is told.
[[noreturn]] void throwFileError(const std::string &path, std::size_t line,
                                 const std::string &text);

class FileText
{
public:
    // Throws Error when there is no such file, it can't be read, is empty, binary, or no Maya ASCII
    // file. With kStandardStream as path the text is that of standard input.
    explicit FileText(std::string path);
    // The same for bytes that are in memory already; messages name them `path`.
    FileText(std::string path, std::string bytes);

    const std::string &path() const { return path_; }       // how messages name it
    std::size_t size() const { return size_; }              // of the file, bytes
    std::size_t bytesRead() const { return bytesRead_; }    // so far
    const std::string &version() const { return version_; } // "2018ff07"
    const std::string &codeset() const { return codeset_; } // "1252", "UTF-8"; may be empty

    // Appends about `bytes` of the file to `text`; false when there is nothing left. Throws Error
    // on a NUL byte and on a failing disk.
    bool fetch(std::size_t bytes, std::string &text);

    // What is to be said about the decoding once all was read; empty if it went well.
    std::string decodingWarning() const;

private:
    struct Closer {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    void open();
    void openStandardInput();
    void openInput();
    std::string readBytes(std::size_t bytes);
    void endLines(std::string &bytes) const;
    void readHeader();
    void refuseNulBytes(std::string_view bytes);

    std::string path_;
    std::string input_; // all of the text, where it comes from no file
    std::unique_ptr<std::FILE, Closer> file_;
    std::size_t size_ = 0;
    std::size_t bytesRead_ = 0;
    std::size_t line_ = 1; // of the next byte to be decoded
    std::string header_;   // bytes that were looked at and not fetched yet
    bool linesEndInCr_ = false;
    std::string version_;
    std::string codeset_;
    std::optional<TextDecoder> decoder_;
};

} // namespace host::ma
