// Benchmarks/other_library.h
// A text in a function-local static, read from another shared library: what a plain text of Lumora is compared with.
#pragma once

#include <string>

const std::string& functionLocalStatic();
