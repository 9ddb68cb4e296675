// SPDX-License-Identifier: Apache-2.0
// Writing the MStatus that a caller of the API may or may not want, and turning host errors into
// it.
#pragma once

#include <new>
#include <string>
#include <utility>

#include <maya/MStatus.h>

#include "scene/error.h"

namespace host
{

// Writes `code` if the caller gave a place for it.
inline void report(MStatus *place, const MStatus &code = MStatus::kSuccess)
{
    if (place)
        *place = code;
}

// Reports `code` and gives `value` back: `return answer(status, MStatus::kFailure, 0);`.
template <class Value>
Value answer(MStatus *place, const MStatus &code, Value value)
{
    report(place, code);
    return value;
}

// Shows a line in the Script Editor; nothing when no Maya is running.
void showInfo(const std::string &text);
void showWarning(const std::string &text);
void showError(const std::string &text);

// Runs `work`, to whose border no host error may come. A failure becomes `onError` without a line
// in the Script Editor (quietly) or with its text there (loudly).
template <class Work>
MStatus quietly(MStatus::MStatusCode onError, Work &&work)
{
    try {
        std::forward<Work>(work)();
    } catch (const Error &) {
        return onError;
    } catch (const std::bad_alloc &) {
        return MStatus::kInsufficientMemory;
    }
    return MStatus::kSuccess;
}

template <class Work>
MStatus loudly(Work &&work)
{
    try {
        std::forward<Work>(work)();
    } catch (const Error &error) {
        showError(error.what());
        return MStatus::kFailure;
    } catch (const std::bad_alloc &) {
        return MStatus::kInsufficientMemory;
    }
    return MStatus::kSuccess;
}

} // namespace host
