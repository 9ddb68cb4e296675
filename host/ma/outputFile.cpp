// SPDX-License-Identifier: Apache-2.0
#include "ma/outputFile.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "scene/error.h"

namespace host::ma
{

namespace
{

// The file that `path` leads to, so that saving through a link keeps the link.
std::string resolvedPath(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                               &std::free);
    return resolved ? resolved.get() : path;
}

} // namespace

OutputFile::OutputFile(std::string path) : path_(std::move(path)), target_(resolvedPath(path_))
{
    struct stat facts = {};
    const bool exists = stat(target_.c_str(), &facts) == 0;
    if (exists && S_ISDIR(facts.st_mode))
        fail(EISDIR);
    // Renaming needs the folder's permission only; a file that was made read-only is to stay.
    if (exists && access(target_.c_str(), W_OK) != 0)
        fail(errno);
    temporary_ = target_ + ".XXXXXX";
    descriptor_ = mkstemp(temporary_.data());
    if (descriptor_ < 0) {
        temporary_.clear();
        fail(errno);
    }
    takeOverMode();
}

OutputFile::~OutputFile()
{
    if (descriptor_ >= 0)
        close(descriptor_);
    if (!temporary_.empty())
        unlink(temporary_.c_str());
}

// mkstemp's files are for their owner alone.
void OutputFile::takeOverMode()
{
    struct stat facts = {};
    const mode_t mask = umask(0);
    umask(mask);
    const mode_t mode = stat(target_.c_str(), &facts) == 0 ? facts.st_mode & 07777 : 0666 & ~mask;
    if (fchmod(descriptor_, mode) != 0)
        fail(errno);
}

void OutputFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            fail(errno);
        bytes.remove_prefix(std::size_t(written));
    }
}

void OutputFile::commit()
{
    const int result = close(descriptor_);
    descriptor_ = -1;
    if (result != 0 || std::rename(temporary_.c_str(), target_.c_str()) != 0)
        fail(errno);
    temporary_.clear();
}

void OutputFile::fail(int reason) const
{
    throw Error(path_ + ": The file could not be written: " + std::strerror(reason));
}

} // namespace host::ma
