// Program/OwnBundle.h
// Finds the bundle of the module that is installed with the program.
#pragma once

#include <string>

namespace Tools {

// The path of the bundle beside the running program, in an installation or in a build tree; where it would be installed
// if there is none.
std::string ownBundle();

} // namespace Tools
