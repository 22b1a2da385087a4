// AssetCatalog/Mapping.h
// A file's bytes in memory without reading them; internal.
#pragma once

#include "Runtime/Result.h"
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

namespace AssetCatalog {

class Mapping {
public:
    // Maps the regular file at `path`, at most `limit` bytes; the start lies at a page's start. Files that are shown so
    // are replaced by renaming, never written over: a file that shrinks takes mapped pages away.
    [[nodiscard]] static Runtime::Result<Mapping> open(const std::string& path, std::size_t limit);

    Mapping() = default;
    Mapping(Mapping&& other) noexcept : bytes_(std::exchange(other.bytes_, {})) {}
    Mapping& operator=(Mapping&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        return *this;
    }
    ~Mapping();

    std::span<const std::uint8_t> bytes() const noexcept { return bytes_; }

private:
    explicit Mapping(std::span<const std::uint8_t> bytes) noexcept : bytes_(bytes) {}

    std::span<const std::uint8_t> bytes_;
};

} // namespace AssetCatalog
