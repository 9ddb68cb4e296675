// SPDX-License-Identifier: Apache-2.0
#include "ma/outputFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

#include "ma/standardStream.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

namespace fs = std::filesystem;

constexpr int kMaxLinks = 40; // as many as Linux follows

// Owner and group first: changing them takes bits of the mode away. A user who may not give the
// owner may still give the group. File systems that have no modes refuse to change them; nothing is
// lost there.
void takeOverAccess(int file, const struct stat &old)
{
    const bool keepsGroup =
        fchown(file, old.st_uid, old.st_gid) == 0 || fchown(file, uid_t(-1), old.st_gid) == 0;
    fchmod(file, old.st_mode & (keepsGroup ? 07777 : 0777));
}

// False if the file's bytes may not be on the disk; a file system without fsync has done its best.
bool flushToDisk(int file)
{
    return fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace

OutputFile::OutputFile(std::string path) : path_(std::move(path))
{
    if (path_ == kStandardStream)
        path_ = "standard output";
    else
        replaceAt(targetPath());
}

// What symbolic links at the end of the path lead to.
std::string OutputFile::targetPath() const
{
    fs::path target = path_;
    for (int links = 0; links < kMaxLinks; ++links) {
        std::error_code isNoLink;
        const fs::path next = fs::read_symlink(target, isNoLink);
        if (isNoLink)
            return target.string();
        target = target.parent_path() / next;
    }
    fail(ELOOP);
}

void OutputFile::replaceAt(const std::string &target)
{
    const std::size_t slash = target.rfind('/');
    name_ = target.substr(slash + 1);
    const std::string folder = slash == std::string::npos ? "." : target.substr(0, slash + 1);
    folder_.reset(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder_.isOpen())
        fail(errno);

    struct stat old = {};
    const bool exists = fstatat(folder_.get(), name_.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
    if (!exists && errno != ENOENT)
        fail(errno);
    if (exists && S_ISDIR(old.st_mode))
        fail(EISDIR);
    if (exists && !S_ISREG(old.st_mode))
        fail("It is a pipe or a device");
    // Renaming needs the folder's permission only; a file that was made read-only is to stay.
    if (exists && faccessat(folder_.get(), name_.c_str(), W_OK, AT_EACCESS) != 0)
        fail(errno);

    file_.emplace(folder_.get());
    if (file_->descriptor() < 0)
        fail("No file can be made in " + folder + ": " + std::strerror(errno));
    if (exists)
        takeOverAccess(file_->descriptor(), old);
}

int OutputFile::descriptor() const
{
    return file_ ? file_->descriptor() : STDOUT_FILENO;
}

void OutputFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            fail(errno);
        bytes.remove_prefix(std::size_t(written));
    }
}

void OutputFile::commit()
{
    if (!file_)
        return;
    if (!flushToDisk(file_->descriptor()) || !file_->publish(name_))
        fail(errno);
    flushToDisk(folder_.get()); // the name, too; the file is in place by now
}

void OutputFile::fail(int reason) const
{
    fail(std::strerror(reason));
}

void OutputFile::fail(const std::string &reason) const
{
    throw Error(path_ + ": The file could not be written: " + reason);
}

} // namespace host::ma
