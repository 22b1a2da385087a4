// Pictures/Bitmap.h
// Decoded pixels.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <vector>

namespace Pictures {

// Four bytes a pixel: red, green, blue, alpha; not premultiplied; rows from the top, without gaps.
struct Bitmap {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;
};

} // namespace Pictures
