#pragma once

#include <cstddef>

// Reads every text of the tree once. What they hold together, and how many there are.
std::size_t readAllTexts(int& count);
