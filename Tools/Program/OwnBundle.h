// Program/OwnBundle.h
// Finds the bundle of the module that is installed with the program.
#pragma once

#include <string>

namespace Tools {

// The path of that bundle in the installation or the build tree of the running program; if neither has it, where it
// would be installed.
std::string ownBundle();

} // namespace Tools
