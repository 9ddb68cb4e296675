// SPDX-License-Identifier: Apache-2.0
// Files go through the `file` command, so that a script and a program do the same.
#include <maya/MFileIO.h>

#include <string_view>

#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::Process;

namespace
{

std::string typeFlag(const char *type)
{
    return type ? " -type " + host::melString(type) : std::string();
}

MStatus runFileCommand(const std::string &flags)
{
    Process *process = Process::current();
    if (!process)
        return MStatus::kFailure;
    const bool succeeded = process->interpreter().run("file" + flags + ";", {}).succeeded;
    return succeeded ? MStatus::kSuccess : MStatus::kFailure;
}

bool sessionFlag(bool host::Session::*member)
{
    Process *process = Process::current();
    return process && process->session().*member;
}

} // namespace

// A scene without a file is called "untitled", as the title bar has it.
MString MFileIO::currentFile()
{
    Process *process = Process::current();
    if (!process)
        return MString();
    const std::string &name = process->session().fileName();
    return name.empty() ? MString("untitled") : host::toMString(name);
}

MStatus MFileIO::setCurrentFile(const MString &fileName)
{
    return runFileCommand(" -rename " + host::melString(host::view(fileName)));
}

MString MFileIO::fileType()
{
    return "mayaAscii";
}

MStatus MFileIO::newFile(bool force)
{
    return runFileCommand(force ? " -f -new" : " -new");
}

MStatus MFileIO::open(const MString &fileName, const char *type, bool force, ReferenceMode, bool)
{
    return runFileCommand((force ? " -f -open" : " -open") + typeFlag(type) + " " +
                          host::melString(host::view(fileName)));
}

// An unchanged scene counts as saved already, unless forced.
MStatus MFileIO::save(bool force)
{
    Process *process = Process::current();
    if (!process || process->session().fileName().empty())
        return MStatus::kFailure;
    if (!force && !process->session().scene().isModified())
        return MStatus::kSuccess;
    return runFileCommand(" -f -save");
}

// `force` means: even when nothing has changed. Under a new name there is always something to
// write.
MStatus MFileIO::saveAs(const MString &fileName, const char *type, bool)
{
    const MStatus status = setCurrentFile(fileName);
    return status ? runFileCommand(" -f -save" + typeFlag(type ? type : "mayaAscii")) : status;
}

MStatus MFileIO::importFile(const MString &fileName, const char *type, bool, const char *nameSpace,
                            bool)
{
    const std::string space =
        nameSpace ? " -namespace " + host::melString(nameSpace) : std::string();
    return runFileCommand(" -import" + typeFlag(type) + space + " " +
                          host::melString(host::view(fileName)));
}

MStatus MFileIO::exportAll(const MString &fileName, const char *type, bool)
{
    return runFileCommand(" -f -exportAll" + typeFlag(type ? type : "mayaAscii") + " " +
                          host::melString(host::view(fileName)));
}

bool MFileIO::isReadingFile()
{
    return sessionFlag(&host::Session::isReadingFile);
}
bool MFileIO::isWritingFile()
{
    return sessionFlag(&host::Session::isWritingFile);
}
bool MFileIO::isOpeningFile()
{
    return sessionFlag(&host::Session::isOpeningFile);
}
bool MFileIO::isNewingFile()
{
    return sessionFlag(&host::Session::isNewingFile);
}
