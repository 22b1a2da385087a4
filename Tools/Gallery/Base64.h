// Gallery/Base64.h
// Bytes as text, for data URIs; internal.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace Gallery {

// The standard alphabet, padded.
[[nodiscard]] std::string base64(std::span<const std::uint8_t> bytes);

} // namespace Gallery
