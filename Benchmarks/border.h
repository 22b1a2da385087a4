// Benchmarks/border.h
// A function-local static behind a library border.
#pragma once

#include <string>

const std::string& functionLocalStatic();
