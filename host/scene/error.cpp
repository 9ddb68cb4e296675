// SPDX-License-Identifier: Apache-2.0
#include "scene/error.h"

namespace host
{

void throwNoSuchObject(const std::string &name)
{
    throw Error("No object matches name: " + name);
}

void throwAmbiguousName(const std::string &name)
{
    throw Error("More than one object matches name: " + name);
}

} // namespace host
