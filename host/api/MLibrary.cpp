// SPDX-License-Identifier: Apache-2.0
#include <maya/MLibrary.h>

#include <cstdlib>

#include "api/process.h"
#include "api/status.h"

MLibrary::MLibrary() = default;
MLibrary::~MLibrary() = default;

MStatus MLibrary::initialize(const char *applicationName, bool useBatchLicense)
{
    return initialize(false, applicationName, useBatchLicense);
}

MStatus MLibrary::initialize(bool wantScriptOutput, const char *, bool)
{
    if (host::Process::current())
        return MStatus::kFailure;
    return host::loudly(
        [&] { host::Process::start(host::Session::Mode::library, wantScriptOutput); });
}

void MLibrary::cleanup(int exitStatus, bool exitWhenDone)
{
    host::Process::stop();
    if (exitWhenDone)
        std::exit(exitStatus);
}
