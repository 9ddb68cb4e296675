// SPDX-License-Identifier: Apache-2.0
// What has to hold of any file and of any MEL. All of it ends the process with a message on stderr
// where it does not.
#pragma once

#include <string>

#include "fuzz/chance.h"

namespace host
{
class Process;
}

// Opens a file that may be faulty. Either it is refused, with an error that names it, and the scene
// stays as it was; or it opens, and what is saved of it opens as the same scene.
// `folder` is for scratch files.
void checkFile(host::Process &maya, const std::string &file, const std::string &folder);

// Runs some statements on a sound scene. Undoing them all gives the scene before; what is saved
// after them opens as the same scene. Leaves the statements in FOLDER/case.mel.
void checkMel(host::Process &maya, const std::string &scene, const std::string &folder,
              Chance &chance);
