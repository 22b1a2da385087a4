#pragma once

#include <cstddef>

// Reads every text of the tree once. Returns their total size and sets `count` to their number.
std::size_t readAllTexts(int& count);
