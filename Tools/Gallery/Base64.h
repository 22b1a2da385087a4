// Gallery/Base64.h
// Base64 encoding for data URIs.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace Gallery {

// Uses the standard alphabet, with padding.
[[nodiscard]] std::string base64(std::span<const std::uint8_t> bytes);

} // namespace Gallery
