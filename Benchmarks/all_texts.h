// Defined in all_texts.cpp, which all_texts.py writes during the build.
#pragma once

#include <cstddef>

// Calls each accessor of Lumora's texts once. Returns the total size of the texts in bytes and sets `count` to their
// number.
std::size_t readAllTexts(int& count);
