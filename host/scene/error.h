// SPDX-License-Identifier: Apache-2.0
// The one way in which host code fails.
//
// Functions of host/ throw Error with the text that a user of Maya would read. The two borders
// catch it: host/mel turns it into an error line with its place, host/api into an MStatus. Nothing
// is ever thrown through <maya/...>.
#pragma once

#include <stdexcept>
#include <string>

namespace host
{

class Error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// "No object matches name: NAME", Maya's answer to a name that is not in the scene.
[[noreturn]] void throwNoSuchObject(const std::string &name);

// "More than one object matches name: NAME".
[[noreturn]] void throwAmbiguousName(const std::string &name);

} // namespace host
