// Compiler/Vector.h
// Vector drawings made into pixels; internal to the compiler.
// Threads: one rendering at a time in a thread of its own is safe.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Compiler {

enum class VectorForm { svg, pdf };

// The form of a vector drawing, told by its content; no value for anything else.
[[nodiscard]] std::optional<VectorForm> vectorFormOf(std::string_view bytes);

// The drawing (a PDF's first page) as a PNG of `scale` pixels a point. Errors: damaged, no size, more pixels than a
// catalog may hold. Nothing outside of `bytes` is read.
[[nodiscard]] Runtime::Result<AssetCatalog::Picture> render(std::string_view bytes, VectorForm form,
                                                            std::uint8_t scale);

} // namespace Compiler
