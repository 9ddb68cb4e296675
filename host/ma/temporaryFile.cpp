// SPDX-License-Identifier: Apache-2.0
#include "ma/temporaryFile.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <random>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

namespace host::ma
{

namespace
{

constexpr std::string_view kPrefix = ".korvex-saving-";
constexpr mode_t kMode = 0666; // umask takes away from it

std::string freshName()
{
    return std::string(kPrefix) + std::to_string(std::random_device{}());
}

// The lock ends with the process.
bool lock(int file)
{
    return flock(file, LOCK_EX | LOCK_NB) == 0;
}

void removeIfAbandoned(int folder, const char *name)
{
    const Descriptor file(openat(folder, name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.isOpen() && lock(file.get()))
        unlinkat(folder, name, 0);
}

struct FolderCloser {
    void operator()(DIR *folder) const { closedir(folder); }
};

void removeAbandoned(int folder)
{
    // Opened anew: reading moves the place in the folder, which copies of a descriptor share.
    const int opened = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, FolderCloser> entries(opened < 0 ? nullptr : fdopendir(opened));
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        if (std::string_view(entry->d_name).substr(0, kPrefix.size()) == kPrefix)
            removeIfAbandoned(folder, entry->d_name);
    }
}

// How the file behind a descriptor is named to a system call that wants a path.
std::string pathOf(int file)
{
    return "/proc/self/fd/" + std::to_string(file);
}

} // namespace

TemporaryFile::TemporaryFile(int folder) : folder_(folder)
{
    removeAbandoned(folder_);
    makeUnnamed();
    if (!file_.isOpen())
        makeNamed();
}

TemporaryFile::~TemporaryFile()
{
    if (!name_.empty())
        unlinkat(folder_, name_.c_str(), 0);
}

void TemporaryFile::makeUnnamed()
{
#ifdef O_TMPFILE
    file_.reset(openat(folder_, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, kMode));
    // Without /proc there is no way to name it later.
    if (file_.isOpen() && access(pathOf(file_.get()).c_str(), F_OK) != 0)
        file_.reset();
    if (file_.isOpen())
        lock(file_.get()); // for the moment between takeName() and the rename
#endif
}

void TemporaryFile::makeNamed()
{
    struct stat facts = {};
    do {
        name_ = freshName();
        file_.reset(openat(folder_, name_.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, kMode));
        if (!file_.isOpen() && errno == EEXIST)
            continue;
        if (!file_.isOpen()) {
            name_.clear();
            return;
        }
        lock(file_.get());
        // Before it was locked another save may have taken it for abandoned.
    } while (!file_.isOpen() || (fstat(file_.get(), &facts) == 0 && facts.st_nlink == 0));
}

bool TemporaryFile::takeName(const std::string &name)
{
    return linkat(AT_FDCWD, pathOf(file_.get()).c_str(), folder_, name.c_str(),
                  AT_SYMLINK_FOLLOW) == 0;
}

bool TemporaryFile::publish(const std::string &name)
{
    const bool isUnnamed = name_.empty();
    if (isUnnamed && takeName(name))
        return true;
    // A link can't replace a file, a rename can.
    while (name_.empty()) {
        if (errno != EEXIST)
            return false;
        const std::string fresh = freshName();
        if (takeName(fresh))
            name_ = fresh;
    }
    if (renameat(folder_, name_.c_str(), folder_, name.c_str()) != 0)
        return false;
    name_.clear();
    return true;
}

} // namespace host::ma
