// Program/OwnBundle.h
// Finds Lumora's own bundle.
#pragma once

#include <string>

namespace Tools {

// The path of Lumora.bundle in the installation or the build tree of the running program; if neither has it, where it
// would be installed.
std::string ownBundle();

} // namespace Tools
