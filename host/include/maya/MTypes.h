// SPDX-License-Identifier: Apache-2.0
// The release, the export macros and the basic types. Stands in for Maya's header of this name;
// declarations only. The release that the host imitates is 2017: the version and the values of
// MFn::Type belong together.
#pragma once

#include <maya/MApiNamespace.h>

#include <stddef.h>
#include <stdint.h>

#define MAYA_API_VERSION 201700

#ifdef _WIN32
#define PLUGIN_EXPORT __declspec(dllexport)
#ifdef KORVEX_HOST_BUILD
#define MAYA_LIBRARY_EXPORT __declspec(dllexport)
#else
#define MAYA_LIBRARY_EXPORT __declspec(dllimport)
#endif
#else
#define PLUGIN_EXPORT __attribute__((visibility("default")))
#define MAYA_LIBRARY_EXPORT PLUGIN_EXPORT
#endif

#ifndef FND_EXPORT
#define FND_EXPORT MAYA_LIBRARY_EXPORT
#endif
#ifndef OPENMAYA_EXPORT
#define OPENMAYA_EXPORT MAYA_LIBRARY_EXPORT
#endif
#ifndef OPENMAYAANIM_EXPORT
#define OPENMAYAANIM_EXPORT MAYA_LIBRARY_EXPORT
#endif
#ifndef OPENMAYAUI_EXPORT
#define OPENMAYAUI_EXPORT MAYA_LIBRARY_EXPORT
#endif

// Both are labels: `BEGIN_NO_SCRIPT_SUPPORT:`.
#define BEGIN_NO_SCRIPT_SUPPORT public
#define END_NO_SCRIPT_SUPPORT public

typedef int64_t MInt64;
typedef uint64_t MUint64;
typedef uintptr_t MUintPtrSz;
typedef intptr_t MIntPtrSz;

typedef void *(*MCreatorFunction)();
typedef MSyntax (*MCreateSyntaxFunction)();
typedef MStatus (*MInitializeFunction)();

MAYA_API_NAMESPACE_ENTER

class MSpace
{
public:
    enum Space {
        kInvalid = 0,
        kTransform = 1,
        kPreTransform = 2,
        kPostTransform = 3,
        kWorld = 4,
        kObject = kPreTransform,
        kLast = 5
    };
};

MAYA_API_NAMESPACE_EXIT
