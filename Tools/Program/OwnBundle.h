// Program/OwnBundle.h
// Where the module that is installed with the program has its bundle.
#pragma once

#include <string>

namespace Tools {

// The bundle's path; of several places the first where it is, else the first.
std::string ownBundle();

} // namespace Tools
