// SourcePictures/Formats.h
// Detects the format of a picture from its first bytes; internal. formatOf() is in PictureFile.cpp, because the plug-in
// needs only the enumeration.
#pragma once

#include <optional>
#include <string_view>

namespace SourcePictures {

enum class Format { png, jpeg, gif, tiff, webp, heif, svg, pdf };

// No value for other formats.
[[nodiscard]] std::optional<Format> formatOf(std::string_view bytes);

} // namespace SourcePictures
