// Program/OwnBundle.h
// Finds the bundle of the module that is installed with the program.
#pragma once

#include <string>

namespace Tools {

// The path of the bundle: the first existing candidate, else the first candidate.
std::string ownBundle();

} // namespace Tools
