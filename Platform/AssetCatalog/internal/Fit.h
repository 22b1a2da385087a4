// AssetCatalog/internal/Fit.h
// Compares variants of an asset for given traits and languages.
// Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace AssetCatalog {

// The distance of `offered` from `wanted`: 0 is an exact match, smaller is better. The criteria, most important first:
// - direction: the wanted one, then a variant for any, then the other (if none is wanted: any, then left to right);
// - appearance: the wanted one, then a variant for any, then the other (if none is wanted: any, then light);
// - contrast: the wanted one, then the other;
// - scale: the wanted one, then a variant for any, then the next larger, then the largest of the smaller ones.
[[nodiscard]] std::uint32_t distance(Fit offered, Fit wanted) noexcept;

// The same for the language of a variant (empty: for all languages). Best is a match with the earliest of `wanted`:
// the same tag, else the longest with fewer subtags ("pt" for "pt-BR"); then a variant for all languages; then any
// other.
[[nodiscard]] std::uint32_t languageDistance(std::string_view offered, std::span<const std::string> wanted) noexcept;

} // namespace AssetCatalog
