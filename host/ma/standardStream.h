// SPDX-License-Identifier: Apache-2.0
// Scenes that come through a pipe instead of a file.
#pragma once

namespace host::ma
{

// In place of a path: standard input where a scene is read, standard output where one is written.
// No absolute path is like it.
constexpr char kStandardStream[] = "-";

} // namespace host::ma
