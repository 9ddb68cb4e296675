// SPDX-License-Identifier: Apache-2.0
// Defines the string by which Maya recognises the release that a plug-in was built for, in the one
// source file of the plug-in that includes this (through MFnPlugin.h). `MNoVersionString` leaves it
// out.
#pragma once

#include <maya/MTypes.h>

#ifndef MNoVersionString
#define MAYA_VERSION_TEXT_OF(version) #version
#define MAYA_VERSION_TEXT(version) MAYA_VERSION_TEXT_OF(version)
extern "C" {
PLUGIN_EXPORT char MApiVersion[] = MAYA_VERSION_TEXT(MAYA_API_VERSION);
}
#endif
