// Benchmarks/other_library.h
// A function-local static in another library.
#pragma once

#include <string>

const std::string& functionLocalStatic();
