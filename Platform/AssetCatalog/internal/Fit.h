// AssetCatalog/internal/Fit.h
// Which variant of an asset serves a reader best.
// Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include <cstddef>
#include <cstdint>
#include <span>

namespace AssetCatalog {

// How far `offered` is from `wanted`: 0 is what was asked for, and the smaller of two serves better. Four questions,
// each deciding only what those before it left equal:
// 1. direction, 2. appearance: the one wanted, then a variant for any, then another (for a reader without a wish: any,
// then
//    left to right or light, then the rest);
// 3. contrast: the one wanted, then the other;
// 4. scale: the one wanted, then a variant for any, then the next larger, then the largest of the smaller ones.
[[nodiscard]] std::uint32_t distance(Fit offered, Fit wanted) noexcept;

// The index of the nearest of `offered`, the first of equals. `offered` holds at least one.
[[nodiscard]] std::size_t bestFit(std::span<const Fit> offered, Fit wanted) noexcept;

} // namespace AssetCatalog
