// AssetCatalog/internal/Fit.h
// Which variant of an asset serves a reader best.
// Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace AssetCatalog {

// How far `offered` is from `wanted`: 0 is what was wanted, and the smaller of two serves better. Each of these decides
// only between variants that those before it leave equal:
// 1. direction, 2. appearance: the one wanted, then a variant for any, then another (for a reader who wants none: any,
//    then left to right or light, then the rest);
// 3. contrast: the one wanted, then the other;
// 4. scale: the one wanted, then a variant for any, then the next larger, then the largest of the smaller ones.
[[nodiscard]] std::uint32_t distance(Fit offered, Fit wanted) noexcept;

// The same for the language of a variant: the one wanted, or the same with fewer subtags ("pt" for "pt-BR"), an earlier
// one of `wanted` before a later one; then a variant for all readers, whose `offered` is empty; then any other.
[[nodiscard]] std::uint32_t languageDistance(std::string_view offered, std::span<const std::string> wanted) noexcept;

} // namespace AssetCatalog
