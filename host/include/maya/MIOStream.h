// SPDX-License-Identifier: Apache-2.0
// The standard streams, brought into the global namespace as Maya's header of this name does.
#pragma once

#include <iostream>

using std::cerr;
using std::cin;
using std::clog;
using std::cout;
using std::endl;
using std::flush;
using std::ostream;
