// SPDX-License-Identifier: Apache-2.0
// A new file that takes its name only when it is whole.
//
// Until then it has no name at all where the file system can do that (ext4, XFS, Btrfs, tmpfs), and
// is gone with the process, whatever ends it. Elsewhere (NFS, SMB) it is called ".korvex-saving-"
// and a number, and its process holds a lock on it: what a killed process left there has no lock,
// and goes with the next save into that folder.
#pragma once

#include <string>

#include "ma/descriptor.h"

namespace host::ma
{

class TemporaryFile
{
public:
    // Makes an empty file that all may read and write whom umask lets. `folder` is a descriptor of
    // an open folder and stays the caller's. If it fails, descriptor() is -1 and errno says why.
    explicit TemporaryFile(int folder);
    ~TemporaryFile(); // removes it unless it was published

    int descriptor() const { return file_.get(); }

    // Gives it `name` in its folder, in place of the file that had it. On false the old file is as
    // it was, and errno says why.
    bool publish(const std::string &name);

private:
    void makeUnnamed();
    void makeNamed();
    bool takeName(const std::string &name); // of a file without one

    int folder_;
    Descriptor file_;
    std::string name_; // empty where it has none, or no longer one of its own
};

} // namespace host::ma
