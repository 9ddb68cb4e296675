// SPDX-License-Identifier: Apache-2.0
#include "ma/fileText.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

#include "ma/standardStream.h"
#include "scene/error.h"
#include "scene/lineCount.h"

namespace host::ma
{

namespace
{

constexpr std::size_t kHeaderBytes = 4096;
constexpr std::size_t kInputBytes = 1u << 20;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kFirstWords = "//Maya ASCII ";
constexpr std::string_view kCodesetWords = "//Codeset:";

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

std::string_view takeLine(std::string_view &text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Why a file that does not begin like a Maya ASCII file can't be read.
const char *foreignFormat(std::string_view beginning)
{
    if (startsWith(beginning, "FOR4") || startsWith(beginning, "FOR8"))
        return "This is a Maya binary file; only Maya ASCII files can be read";
    return "This is not a Maya ASCII file: it does not begin with \"//Maya ASCII\"";
}

} // namespace

void throwFileError(const std::string &path, std::size_t line, const std::string &text)
{
    throw Error(path + " line " + std::to_string(line) + ": " + text);
}

FileText::FileText(std::string path) : path_(std::move(path))
{
    if (path_ == kStandardStream)
        openStandardInput();
    else
        open();
    readHeader();
}

FileText::FileText(std::string path, std::string bytes)
    : path_(std::move(path)), input_(std::move(bytes)), size_(input_.size())
{
    openInput();
    readHeader();
}

// Old systems end a line with CR alone. None of the codesets has a character with a CR in it.
void FileText::endLines(std::string &bytes) const
{
    if (linesEndInCr_)
        std::replace(bytes.begin(), bytes.end(), '\r', '\n');
}

void FileText::open()
{
    // With O_NONBLOCK a pipe to which nobody writes is not waited for.
    const int descriptor = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor >= 0)
        file_.reset(fdopen(descriptor, "rb"));
    if (!file_)
        throw Error(path_ + ": " + (errno == ENOENT ? "File not found" : std::strerror(errno)));
    struct stat facts = {};
    if (fstat(fileno(file_.get()), &facts) != 0)
        throw Error(path_ + ": " + std::strerror(errno));
    // A pipe or a device may never end.
    if (!S_ISREG(facts.st_mode))
        throw Error(path_ + ": This is not a file" +
                    (S_ISDIR(facts.st_mode) ? " but a folder" : ""));
    size_ = std::size_t(facts.st_size);
}

void FileText::openStandardInput()
{
    path_ = "standard input";
    std::size_t bytes = 0;
    do {
        input_.resize(input_.size() + kInputBytes);
        bytes = std::fread(&input_[size_], 1, kInputBytes, stdin);
        size_ += bytes;
        input_.resize(size_);
    } while (bytes == kInputBytes);
    if (std::ferror(stdin))
        throw Error(path_ + ": " + std::strerror(errno));
    openInput();
}

void FileText::openInput()
{
    if (size_ > 0)
        file_.reset(fmemopen(input_.data(), size_, "rb"));
}

std::string FileText::readBytes(std::size_t bytes)
{
    std::string block(bytes, '\0');
    block.resize(std::fread(block.data(), 1, bytes, file_.get()));
    if (std::ferror(file_.get()))
        throw Error(path_ + ": " + std::strerror(errno));
    endLines(block);
    return block;
}

void FileText::readHeader()
{
    if (size_ == 0)
        throwFileError(path_, 1, "The file is empty");
    header_ = readBytes(kHeaderBytes);
    if (startsWith(header_, kByteOrderMark))
        header_.erase(0, kByteOrderMark.size());
    const std::size_t lineEnd = std::min(header_.find_first_of("\r\n"), header_.size());
    linesEndInCr_ =
        lineEnd + 1 < header_.size() && header_[lineEnd] == '\r' && header_[lineEnd + 1] != '\n';
    endLines(header_);
    if (!startsWith(header_, kFirstWords))
        throwFileError(path_, 1, foreignFormat(header_));
    std::string_view rest = header_;
    const std::string_view words = takeLine(rest).substr(kFirstWords.size());
    version_ = std::string(words.substr(0, words.find(' ')));
    // Maya's own header has four lines; the rest of a longer comment may hold anything.
    for (unsigned line = 0; line < 8 && startsWith(rest, "//"); ++line) {
        const std::string_view comment = takeLine(rest);
        if (startsWith(comment, kCodesetWords))
            codeset_ = std::string(trimmed(comment.substr(kCodesetWords.size())));
    }
    decoder_.emplace(codeset_);
}

void FileText::refuseNulBytes(std::string_view bytes)
{
    const std::size_t nul = bytes.find('\0');
    const std::string_view before = bytes.substr(0, nul);
    line_ += lineEndsIn(before);
    if (nul != std::string_view::npos)
        throwFileError(path_, line_, "NUL byte: this is not a text file");
}

bool FileText::fetch(std::size_t bytes, std::string &text)
{
    const std::string block = header_.empty() ? readBytes(bytes) : std::exchange(header_, {});
    if (block.empty()) {
        decoder_->finish(text);
        return false;
    }
    bytesRead_ += block.size();
    refuseNulBytes(block);
    decoder_->decode(block, text);
    return true;
}

std::string FileText::decodingWarning() const
{
    const std::size_t replaced = decoder_->replacedBytes();
    if (replaced == 0)
        return {};
    const std::string codeset = codeset_.empty() ? "UTF-8" : codeset_;
    return (decoder_->isKnown()
                ? "Bytes that mean nothing in the codeset \"" + codeset + "\""
                : "The codeset \"" + codeset + "\" is not known; bytes that are not UTF-8") +
           " were replaced: " + std::to_string(replaced);
}

} // namespace host::ma
